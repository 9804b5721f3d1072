#include "board/calendar.h"

#include "platform/clock.h"

#include <algorithm>

namespace quillfern::board {
namespace {

constexpr std::int64_t minutes_per_day = std::int64_t{24} * 60;
constexpr std::int64_t ms_per_minute = 60'000;
constexpr std::int64_t ms_per_day = minutes_per_day * ms_per_minute;

std::int64_t floor_divide(std::int64_t a, std::int64_t b)
{
    return a / b - (a % b < 0 ? 1 : 0);
}

/// Far beyond any calendar's years, and small enough that a day's milliseconds fit into 64 bits.
constexpr std::int64_t most_days = 1'000'000'000;

} // namespace

std::int64_t Calendar::day_number(Instant instant) const
{
    const CivilDate date = date_of(instant);
    return days_from_civil(date.year, date.month, date.day);
}

Instant Calendar::at(std::int64_t day_number, std::int64_t minutes) const
{
    const std::int64_t whole_days = floor_divide(minutes, minutes_per_day);
    const std::int64_t day =
        std::clamp(day_number, -most_days, most_days) + std::clamp(whole_days, -most_days, most_days);
    const std::int64_t minute = minutes - whole_days * minutes_per_day;
    const auto instant = instant_at(civil_from_days(day), static_cast<int>(minute / 60), static_cast<int>(minute % 60));
    return instant.value_or(Instant{day * ms_per_day + minute * ms_per_minute});
}

Calendar Calendar::local()
{
    return {platform::local_date, platform::local_instant};
}

Calendar Calendar::with_offset(std::int64_t minutes)
{
    const std::int64_t offset = minutes * ms_per_minute;
    return {
        [offset](Instant instant) { return civil_from_days(floor_divide(instant.milliseconds + offset, ms_per_day)); },
        [offset](const CivilDate& date, int hour, int minute) -> std::optional<Instant> {
            const std::int64_t day = days_from_civil(date.year, date.month, date.day);
            return Instant{day * ms_per_day + (hour * 60 + minute) * ms_per_minute - offset};
        },
    };
}

} // namespace quillfern::board
