#include "app/help/program_version.h"

#include <algorithm>
#include <charconv>

namespace quillfern::app {
namespace {

constexpr std::size_t most_numbers = 8;
constexpr std::size_t most_digits = 9;
constexpr std::size_t longest_suffix = 40;

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool is_suffix_character(char c)
{
    return is_digit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' || c == '-';
}

/// Takes the number that `text` begins with off it.
std::optional<std::int64_t> take_number(std::string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), is_digit);
    const auto digits = static_cast<std::size_t>(end - text.begin());
    if (digits == 0 || digits > most_digits)
        return std::nullopt;
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + digits, number);
    text.remove_prefix(digits);
    return number;
}

} // namespace

std::optional<ProgramVersion> ProgramVersion::parse(std::string_view text)
{
    ProgramVersion version;
    version.text_ = text;
    for (bool more = true; more;) {
        const auto number = take_number(text);
        if (!number || version.numbers_.size() == most_numbers)
            return std::nullopt;
        version.numbers_.push_back(*number);
        more = text.starts_with('.');
        text.remove_prefix(more ? 1 : 0);
    }
    while (!version.numbers_.empty() && version.numbers_.back() == 0)
        version.numbers_.pop_back();
    if (text.empty())
        return version;
    version.before_release_ = text.substr(1);
    const bool well_formed = text.front() == '-' && text.size() > 1 && text.size() <= longest_suffix
        && std::all_of(text.begin(), text.end(), is_suffix_character);
    return well_formed ? std::optional(version) : std::nullopt;
}

std::strong_ordering operator<=>(const ProgramVersion& a, const ProgramVersion& b)
{
    if (const auto order = a.numbers_ <=> b.numbers_; order != 0)
        return order;
    if (a.before_release_.empty() != b.before_release_.empty())
        return a.before_release_.empty() ? std::strong_ordering::greater : std::strong_ordering::less;
    return a.before_release_ <=> b.before_release_;
}

} // namespace quillfern::app
