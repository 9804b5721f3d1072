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
    constexpr std::int64_t last_year = 9999;
    const auto pieces = split_at_hyphens(trimmed(text));
    if (!pieces)
        return std::nullopt;
    const auto year = parse_number((*pieces)[0]);
    const auto month = parse_number((*pieces)[1]);
    const auto day = parse_number((*pieces)[2]);
    if (!year || !month || !day || *year < 1 || *year > last_year || *month < 1 || *month > months_per_year || *day < 1
        || *day > days_in_month(*year, *month))
        return std::nullopt;
    return Day{*year, *month, *day};
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
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%04lld-%02lld-%02lld", static_cast<long long>(year),
        static_cast<long long>(month), static_cast<long long>(day));
    return {text.data(), static_cast<std::size_t>(length)};
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
