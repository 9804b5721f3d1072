#include "grants/money.h"

#include "base/decimal.h"
#include "base/trim.h"
#include "platform/locale_text.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace quillfern::grants {
namespace {

constexpr std::int64_t cents_per_unit = 100;
constexpr int cent_digits = 2;

[[noreturn]] void stop_on_overflow()
{
    std::fputs("An amount of money left the range of 64 bits.\n", stderr);
    std::abort();
}

std::int64_t checked_sum(std::int64_t a, std::int64_t b)
{
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        stop_on_overflow();
    return sum;
}

std::int64_t checked_difference(std::int64_t a, std::int64_t b)
{
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        stop_on_overflow();
    return difference;
}

std::int64_t checked_product(std::int64_t a, std::int64_t b)
{
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        stop_on_overflow();
    return product;
}

} // namespace

Money Money::from_units(std::int64_t units)
{
    return {checked_product(units, cents_per_unit)};
}

std::optional<Money> Money::parse(std::string_view text)
{
    const auto cents = parse_scaled_decimal(trimmed(text), cent_digits);
    return cents ? std::optional(Money{*cents}) : std::nullopt;
}

Money Money::percentage(std::int64_t percent) const
{
    const std::int64_t product = checked_product(cents, percent);
    return {checked_sum(product, product >= 0 ? 50 : -50) / 100};
}

std::string Money::text() const
{
    auto rest = cents < 0 ? 0 - static_cast<std::uint64_t>(cents) : static_cast<std::uint64_t>(cents);
    std::array<char, 24> text{};
    char* const end = text.data() + text.size();
    char* start = end;
    for (int digits = 0; rest > 0 || digits <= cent_digits; ++digits, rest /= 10) {
        if (digits == cent_digits)
            *--start = '.';
        *--start = static_cast<char>('0' + rest % 10);
    }
    if (cents < 0)
        *--start = '-';
    return {start, end};
}

Money& Money::operator+=(Money other)
{
    cents = checked_sum(cents, other.cents);
    return *this;
}

Money& Money::operator-=(Money other)
{
    cents = checked_difference(cents, other.cents);
    return *this;
}

std::string display_text(Money amount, std::string_view currency_code, Lang lang, std::optional<bool> cents)
{
    const bool shown = cents.value_or(amount.cents % cents_per_unit != 0);
    return platform::format_currency(amount.cents, currency_code, shown ? cent_digits : 0, lang);
}

} // namespace quillfern::grants
