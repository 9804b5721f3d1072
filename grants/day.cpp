#include "grants/day.h"

#include "base/civil.h"
#include "base/trim.h"
#include "platform/clock.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <limits>

namespace quillfern::grants {
namespace {

constexpr std::int64_t farthest_year = 1'000'000'000'000'000;
constexpr std::int64_t farthest_day = 365 * farthest_year;
constexpr std::int64_t months_per_year = 12;
constexpr std::int64_t ms_per_day = 86'400'000;

constexpr bool beyond_any_date(std::int64_t number)
{
    return number < -farthest_year || number > farthest_year;
}

constexpr std::int64_t saturated_sum(std::int64_t a, std::int64_t b)
{
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return b < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

/// A year and a month of 1 to 12, from months counted from January of year 0.
struct YearMonth {
    std::int64_t year;
    std::int64_t month;

    explicit constexpr YearMonth(std::int64_t months)
        : year((months - (months < 0 ? months_per_year - 1 : 0)) / months_per_year),
          month(months - year * months_per_year + 1)
    {
    }
};

Day from_civil(const CivilDate& date)
{
    return {date.year, date.month, date.day};
}

/// Digits only; a number too long for 64 bits is no number of a date either.
std::optional<std::int64_t> parse_number(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

constexpr std::size_t iso_length = 10;

int digit_at(std::string_view text, std::size_t index)
{
    const int digit = text[index] - '0';
    return digit >= 0 && digit <= 9 ? digit : -100'000;
}

/// The spelling of nearly every day in a file, YYYY-MM-DD, without the search for pieces.
std::optional<Day> parse_iso(std::string_view text)
{
    if (text.size() != iso_length || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const Day day{digit_at(text, 0) * 1000 + digit_at(text, 1) * 100 + digit_at(text, 2) * 10 + digit_at(text, 3),
        digit_at(text, 5) * 10 + digit_at(text, 6), digit_at(text, 8) * 10 + digit_at(text, 9)};
    return day.year >= 0 && day.month >= 0 && day.day >= 0 ? std::optional(day) : std::nullopt;
}

bool is_day_of_files(const Day& day)
{
    return day.year >= first_day_of_files.year && day.year <= last_day_of_files.year && day.month >= 1
        && day.month <= months_per_year && day.day >= 1 && day.day <= days_in_month(day.year, day.month);
}

/// The pieces between hyphens, empty ones dropped; absent unless they are three.
std::optional<std::array<std::string_view, 3>> split_at_hyphens(std::string_view text)
{
    std::array<std::string_view, 3> pieces;
    std::size_t count = 0;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('-'), text.size());
        if (length > 0) {
            if (count == pieces.size())
                return std::nullopt;
            pieces[count++] = text.substr(0, length);
        }
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return count == pieces.size() ? std::optional(pieces) : std::nullopt;
}

std::optional<Day> parse_pieces(std::string_view text)
{
    const auto pieces = split_at_hyphens(text);
    if (!pieces)
        return std::nullopt;
    const auto year = parse_number((*pieces)[0]);
    const auto month = parse_number((*pieces)[1]);
    const auto day = parse_number((*pieces)[2]);
    return year && month && day ? std::optional(Day{*year, *month, *day}) : std::nullopt;
}

void put_digits(char* out, std::int64_t value, int width)
{
    for (int i = width - 1; i >= 0; --i, value /= 10)
        out[i] = static_cast<char>('0' + value % 10);
}

} // namespace

Day Day::normalised(std::int64_t year, std::int64_t month, std::int64_t day)
{
    if (beyond_any_date(year) || beyond_any_date(month) || beyond_any_date(day))
        return {};
    const YearMonth first(year * months_per_year + month - 1);
    return from_days_since_epoch(days_from_civil(first.year, first.month, 1) + day - 1);
}

std::optional<Day> Day::parse(std::string_view text)
{
    auto day = parse_iso(text);
    if (!day)
        day = parse_pieces(trimmed(text));
    return day && is_day_of_files(*day) ? day : std::nullopt;
}

Day Day::from_days_since_epoch(std::int64_t days)
{
    return from_civil(civil_from_days(std::clamp(days, -farthest_day, farthest_day)));
}

std::int64_t Day::days_since_epoch() const
{
    return days_from_civil(year, month, day);
}

Day Day::plus_days(std::int64_t days) const
{
    return from_days_since_epoch(saturated_sum(days_since_epoch(), days));
}

Day Day::plus_months(std::int64_t months) const
{
    constexpr std::int64_t farthest_month = farthest_year * months_per_year;
    const std::int64_t counted = saturated_sum(year * months_per_year + month - 1, months);
    const YearMonth target(std::clamp(counted, -farthest_month, farthest_month));
    return {target.year, target.month, std::min(day, days_in_month(target.year, target.month))};
}

int Day::weekday() const
{
    constexpr std::int64_t thursday = 4; // 1970-01-01, counted from Sunday as 0
    return static_cast<int>(((days_since_epoch() + thursday) % 7 + 7) % 7 + 1);
}

std::string Day::text() const
{
    std::array<char, 32> text{};
    if (year < 0 || year > last_day_of_files.year) {
        const int length = std::snprintf(text.data(), text.size(), "%04lld-%02d-%02d", static_cast<long long>(year),
            static_cast<int>(month), static_cast<int>(day));
        return {text.data(), static_cast<std::size_t>(length)};
    }
    put_digits(text.data(), year, 4);
    text[4] = '-';
    put_digits(&text[5], month, 2);
    text[7] = '-';
    put_digits(&text[8], day, 2);
    return {text.data(), 10};
}

std::int64_t days_between(const Day& a, const Day& b)
{
    return b.days_since_epoch() - a.days_since_epoch();
}

std::string display_text(const Day& day, Lang lang, DateStyle style)
{
    return platform::format_date(day.days_since_epoch(), style, lang);
}

std::string month_title(std::int64_t year, std::int64_t month, Lang lang)
{
    return platform::format_date_fields(Day::normalised(year, month, 1).days_since_epoch(), "yMMMM", lang);
}

Day today_here()
{
    return day_here(platform::now());
}

Day day_here(Instant instant)
{
    return from_civil(platform::local_date(instant));
}

Instant instant_here(const Day& day, int hour, int minute)
{
    const Instant noon{day.days_since_epoch() * ms_per_day + ms_per_day / 2};
    return platform::local_instant({day.year, day.month, day.day}, hour, minute).value_or(noon);
}

} // namespace quillfern::grants

std::size_t std::hash<quillfern::grants::Day>::operator()(const quillfern::grants::Day& day) const noexcept
{
    return std::hash<std::int64_t>()((day.year * 16 + day.month) * 32 + day.day);
}
