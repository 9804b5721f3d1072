#include "base/decimal.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace quillfern {
namespace {

constexpr std::int64_t largest_exponent = 1'000'000'000'000'000;

struct Decimal {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
    std::int64_t exponent = 0; ///< saturated at ±largest_exponent, far beyond the length of any text
};

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool take(std::string_view& rest, char c)
{
    if (rest.empty() || rest.front() != c)
        return false;
    rest.remove_prefix(1);
    return true;
}

bool take_sign(std::string_view& rest)
{
    const bool negative = take(rest, '-');
    if (!negative)
        take(rest, '+');
    return negative;
}

std::string_view take_digits(std::string_view& rest)
{
    const auto length = static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), is_digit) - rest.begin());
    const std::string_view digits = rest.substr(0, length);
    rest.remove_prefix(length);
    return digits;
}

/// Absent when the digits after the "e" are missing.
std::optional<std::int64_t> take_exponent(std::string_view& rest)
{
    const bool negative = take_sign(rest);
    const std::string_view digits = take_digits(rest);
    if (digits.empty())
        return std::nullopt;
    std::int64_t exponent = 0;
    for (const char c : digits)
        exponent = std::min(largest_exponent, exponent * 10 + (c - '0'));
    return negative ? -exponent : exponent;
}

std::optional<Decimal> split(std::string_view text)
{
    Decimal decimal;
    decimal.negative = take_sign(text);
    decimal.whole = take_digits(text);
    if (take(text, '.'))
        decimal.fraction = take_digits(text);
    if (decimal.whole.empty() && decimal.fraction.empty())
        return std::nullopt;
    if (take(text, 'e') || take(text, 'E')) {
        const auto exponent = take_exponent(text);
        if (!exponent)
            return std::nullopt;
        decimal.exponent = *exponent;
    }
    return text.empty() ? std::optional(decimal) : std::nullopt;
}

/// The digits of both halves in a row, without leading zeros, and how many of them stand before the scaled point.
class Digits {
public:
    Digits(const Decimal& decimal, int scale) : decimal_(decimal)
    {
        const auto size = decimal.whole.size() + decimal.fraction.size();
        while (first_ < size && at(first_) == 0)
            ++first_;
        count_ = static_cast<std::int64_t>(size - first_);
        before_point_ = static_cast<std::int64_t>(decimal.whole.size()) - static_cast<std::int64_t>(first_)
            + decimal.exponent + scale;
    }

    bool zero() const { return count_ == 0; }
    std::int64_t before_point() const { return before_point_; }

    /// Whether nothing but zeros stands behind the scaled point.
    bool whole() const
    {
        for (std::int64_t i = std::max<std::int64_t>(before_point_, 0); i < count_; ++i)
            if (digit(i) != 0)
                return false;
        return true;
    }

    /// Counted from the first digit that is not zero; zero beyond the last.
    unsigned digit(std::int64_t index) const
    {
        return index >= 0 && index < count_ ? at(first_ + static_cast<std::size_t>(index)) : 0;
    }

private:
    unsigned at(std::size_t index) const
    {
        const auto& [negative, whole, fraction, exponent] = decimal_;
        return static_cast<unsigned>((index < whole.size() ? whole[index] : fraction[index - whole.size()]) - '0');
    }

    const Decimal& decimal_;
    std::size_t first_ = 0;
    std::int64_t count_ = 0;
    std::int64_t before_point_ = 0;
};

std::optional<std::int64_t> scaled_value(const Digits& digits, bool negative)
{
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t most_digits = 19;
    if (digits.zero())
        return 0;
    if (digits.before_point() > most_digits)
        return std::nullopt;
    std::uint64_t magnitude = 0; // 19 digits and one more from rounding fit into 64 bits without a sign
    for (std::int64_t i = 0; i < digits.before_point(); ++i)
        magnitude = magnitude * 10 + digits.digit(i);
    if (digits.before_point() >= 0 && digits.digit(digits.before_point()) >= 5)
        ++magnitude;
    if (magnitude > largest + (negative ? 1 : 0))
        return std::nullopt;
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

} // namespace

std::optional<std::int64_t> parse_scaled_decimal(std::string_view text, int scale)
{
    const auto decimal = split(text);
    return decimal ? scaled_value(Digits(*decimal, scale), decimal->negative) : std::nullopt;
}

std::optional<std::int64_t> parse_whole_decimal(std::string_view text)
{
    std::int64_t plain = 0;
    const char* end = text.data() + text.size();
    if (const auto [stop, error] = std::from_chars(text.data(), end, plain); error == std::errc() && stop == end)
        return plain;
    const auto decimal = split(text);
    if (!decimal)
        return std::nullopt;
    const Digits digits(*decimal, 0);
    return digits.whole() ? scaled_value(digits, decimal->negative) : std::nullopt;
}

bool is_decimal(std::string_view text)
{
    return split(text).has_value();
}

} // namespace quillfern
