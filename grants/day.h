#pragma once

#include "base/instant.h"
#include "base/text.h"
#include "platform/locale_text.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern::grants {

using platform::DateStyle;
using quillfern::Lang;

/// A calendar date without a time of day, in the Gregorian calendar.
///
/// All arithmetic is on whole days, so no time zone or daylight-saving change can move a date. Days that came from text
/// have a year of 1 to 9999; arithmetic may leave that range, and stops at 10^15 years from year 0.
///
///     Day due = *Day::parse("2025-01-31");
///     due.plus_months(1);                       // 2025-02-28: clamped to the month
///     days_between(due, due.plus_days(-3));     // -3
struct Day {
    std::int64_t year = 1970;
    std::int64_t month = 1; ///< 1 to 12
    std::int64_t day = 1; ///< 1 to the length of the month

    /// Rolls an overflowing month or day over as the calendar does (30 February becomes 1 or 2 March). Numbers too
    /// large for any date give 1 January 1970.
    static Day normalised(std::int64_t year, std::int64_t month, std::int64_t day);

    /// Reads "2025-03-07", blanks around it and missing zeros allowed. Absent for anything that is no date of the years
    /// 1 to 9999.
    static std::optional<Day> parse(std::string_view text);

    static Day from_days_since_epoch(std::int64_t days);
    std::int64_t days_since_epoch() const; ///< since 1970-01-01

    Day plus_days(std::int64_t days) const;

    /// Keeps the day of the month, clamped to the month's length: period ends stay in their month.
    Day plus_months(std::int64_t months) const;

    int weekday() const; ///< 1 = Sunday to 7 = Saturday

    std::string text() const; ///< ISO, as in files: 2025-03-07

    friend bool operator==(const Day&, const Day&) = default;
    friend auto operator<=>(const Day&, const Day&) = default;
};

/// The days that a file can hold.
inline constexpr Day first_day_of_files = {1, 1, 1};
inline constexpr Day last_day_of_files = {9999, 12, 31};

/// The day itself, or the first or last one that a file can hold.
constexpr Day within_files(const Day& day)
{
    return day < first_day_of_files ? first_day_of_files : day > last_day_of_files ? last_day_of_files : day;
}

/// Positive when `b` is later.
std::int64_t days_between(const Day& a, const Day& b);

/// The day in the language's own form (Mar 7, 2025 · 7 mar 2025).
std::string display_text(const Day& day, Lang lang, DateStyle style = DateStyle::medium);

/// The full month and the year (March 2025 · marzo de 2025), for calendar pages and headings.
std::string month_title(std::int64_t year, std::int64_t month, Lang lang);

/// The date on the user's own calendar and in the user's own time zone, now.
Day today_here();

/// The date there at a moment.
Day day_here(Instant instant);

/// The moment at which the user's own clock shows that time on that day; past the gap when a change to
/// daylight-saving time skips it; noon in UTC when the system cannot tell. `hour` is 0 to
/// 23, `minute` 0 to 59.
Instant instant_here(const Day& day, int hour, int minute);

} // namespace quillfern::grants

template <>
struct std::hash<quillfern::grants::Day> {
    std::size_t operator()(const quillfern::grants::Day& day) const noexcept;
};
