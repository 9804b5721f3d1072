#include "platform/clock.h"

#include <chrono>
#include <ctime>
#include <limits>

namespace quillfern::platform {
namespace {

constexpr std::int64_t ms_per_second = 1000;
constexpr std::int64_t first_tm_year = 1900;

std::time_t whole_seconds(Instant instant)
{
    const std::int64_t seconds = instant.milliseconds / ms_per_second;
    return instant.milliseconds % ms_per_second < 0 ? seconds - 1 : seconds;
}

} // namespace

Instant now()
{
    const auto since_epoch = std::chrono::system_clock::now().time_since_epoch();
    return {std::chrono::floor<std::chrono::milliseconds>(since_epoch).count()};
}

CivilDate local_date(Instant instant)
{
    const std::time_t seconds = whole_seconds(instant);
    std::tm local{};
    tzset(); // localtime_r may keep the zone of the program's start
    if (!localtime_r(&seconds, &local))
        return {};
    return {local.tm_year + first_tm_year, local.tm_mon + 1, local.tm_mday};
}

std::optional<Instant> local_instant(const CivilDate& date, int hour, int minute)
{
    const std::int64_t tm_year = date.year - first_tm_year;
    if (tm_year < std::numeric_limits<int>::min() || tm_year > std::numeric_limits<int>::max())
        return std::nullopt;
    std::tm local{};
    local.tm_year = static_cast<int>(tm_year);
    local.tm_mon = static_cast<int>(date.month - 1);
    local.tm_mday = static_cast<int>(date.day);
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_isdst = -1;
    local.tm_wday = -1; // mktime's own mark of success, since -1 is also a valid second
    const std::time_t seconds = std::mktime(&local);
    if (local.tm_wday < 0 || seconds > std::numeric_limits<std::int64_t>::max() / ms_per_second
        || seconds < std::numeric_limits<std::int64_t>::min() / ms_per_second)
        return std::nullopt;
    return Instant{seconds * ms_per_second};
}

} // namespace quillfern::platform
