#pragma once

#include "base/civil.h"
#include "base/instant.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillfern::board {

/// The calendar by which instants fall on days: the user's own, or a fixed one. Passed in, so that no rule of a board
/// reads a clock or a time zone by itself.
struct Calendar {
    std::function<CivilDate(Instant)> date_of;
    std::function<std::optional<Instant>(const CivilDate&, int hour, int minute)> instant_at;

    std::int64_t day_number(Instant instant) const; ///< since 1970-01-01

    /// The instant of a wall-clock time, given in minutes after the day's midnight; times beyond the day fall on the
    /// days around it.
    Instant at(std::int64_t day_number, std::int64_t minutes) const;

    /// The user's own time zone.
    static Calendar local();

    /// A place that is always `minutes` east of Greenwich.
    static Calendar with_offset(std::int64_t minutes);
};

} // namespace quillfern::board
