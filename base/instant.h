#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern {

/// A point in time, in whole milliseconds since 1970-01-01T00:00:00Z.
///
/// Files hold it as ISO 8601 internet date-time text in UTC with milliseconds: 2025-03-07T14:03:22.125Z.
struct Instant {
    std::int64_t milliseconds = 0;

    /// Reads YYYY-MM-DDThh:mm:ss with or without a fraction of any length, then Z or an offset (+hh:mm, +hhmm). The
    /// fraction is rounded to milliseconds, carrying into the seconds. Absent for anything else, a text without a zone
    /// among them: it would mean another moment on another computer.
    static std::optional<Instant> parse(std::string_view text);

    /// The 24 characters of the file text. Years outside 0 to 9999 never come from a file and are clamped to them.
    std::string text() const;

    friend bool operator==(Instant, Instant) = default;
    friend auto operator<=>(Instant, Instant) = default;
};

} // namespace quillfern
