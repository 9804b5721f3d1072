#pragma once

#include "grants/day.h"

#include <cstdint>
#include <string>
#include <string_view>

/// How the window words days for the reader, in English as the whole interface.
namespace quillfern::app {

std::string_view short_weekday(const grants::Day& day); ///< Sun

std::string short_date(const grants::Day& day); ///< Aug 30

/// How far `day` is from `today`: "11 days late", "Today", "Tomorrow", "in 5 days".
std::string relative_day(const grants::Day& day, const grants::Day& today);

} // namespace quillfern::app
