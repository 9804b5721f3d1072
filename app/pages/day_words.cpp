#include "app/pages/day_words.h"

#include <array>
#include <cstddef>

namespace quillfern::app {
namespace {

constexpr std::array<std::string_view, 7> weekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> months = {
    "Jan",
    "Feb",
    "Mar",
    "Apr",
    "May",
    "Jun",
    "Jul",
    "Aug",
    "Sep",
    "Oct",
    "Nov",
    "Dec",
};

} // namespace

std::string_view short_weekday(const grants::Day& day)
{
    return weekdays[static_cast<std::size_t>(day.weekday() - 1)];
}

std::string short_date(const grants::Day& day)
{
    return std::string(months[static_cast<std::size_t>(day.month - 1)]) + ' ' + std::to_string(day.day);
}

std::string relative_day(const grants::Day& day, const grants::Day& today)
{
    const std::int64_t days = grants::days_between(today, day);
    if (days == 0)
        return "Today";
    if (days == 1)
        return "Tomorrow";
    if (days > 0)
        return "in " + std::to_string(days) + " days";
    return std::to_string(-days) + (days == -1 ? " day late" : " days late");
}

} // namespace quillfern::app
