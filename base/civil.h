#pragma once

#include <cstdint>

namespace quillfern {

/// A date of the proleptic Gregorian calendar. `year` may be any within ±10^15, `month` is 1 to 12, `day` 1 to 31.
struct CivilDate {
    std::int64_t year = 1970;
    std::int64_t month = 1;
    std::int64_t day = 1;
};

constexpr bool is_leap_year(std::int64_t year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// `month` is 1 to 12.
constexpr std::int64_t days_in_month(std::int64_t year, std::int64_t month)
{
    if (month == 2)
        return is_leap_year(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Days from 1970-01-01 to the date; `month` is 1 to 12, `day` may overflow its month. (Howard Hinnant,
/// "chrono-Compatible Low-Level Date Algorithms", days_from_civil, here on 64 bits.)
constexpr std::int64_t days_from_civil(std::int64_t year, std::int64_t month, std::int64_t day)
{
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t year_of_era = year - era * 400;
    const std::int64_t day_of_year = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t day_of_era = year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
    return era * 146097 + day_of_era - 719468;
}

/// The inverse: civil_from_days of the same paper.
constexpr CivilDate civil_from_days(std::int64_t days)
{
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t day_of_era = days - era * 146097;
    const std::int64_t year_of_era = (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
    const std::int64_t day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
    const std::int64_t shifted_month = (5 * day_of_year + 2) / 153;
    const std::int64_t month = shifted_month + (shifted_month < 10 ? 3 : -9);
    return {year_of_era + era * 400 + (month <= 2 ? 1 : 0), month, day_of_year - (153 * shifted_month + 2) / 5 + 1};
}

} // namespace quillfern
