#include "grants/profile.h"

#include <algorithm>

namespace quillfern::grants {
namespace {

std::int64_t clamped_month(std::int64_t month)
{
    return std::clamp<std::int64_t>(month, 1, 12);
}

} // namespace

std::int64_t FiscalCalendar::year_of(const Day& day) const
{
    const std::int64_t start = clamped_month(startMonth);
    return start == 1 || day.month < start ? day.year : day.year + 1;
}

DayRange FiscalCalendar::range(std::int64_t fiscal_year) const
{
    constexpr std::int64_t farthest_year = 1'000'000'000'000; // beyond any file's, well within what days can count
    fiscal_year = std::clamp(fiscal_year, -farthest_year, farthest_year);
    const std::int64_t start = clamped_month(startMonth);
    const std::int64_t first_year = start == 1 ? fiscal_year : fiscal_year - 1;
    return {{first_year, start, 1}, Day::normalised(first_year + 1, start, 0)};
}

FiscalCalendar fiscal_calendar(const OrgProfile& profile)
{
    return {clamped_month(profile.fiscalYearStartMonth)};
}

std::string fiscal_year_label(std::int64_t fiscal_year)
{
    return "FY" + std::to_string(fiscal_year);
}

} // namespace quillfern::grants
