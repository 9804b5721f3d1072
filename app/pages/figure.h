#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillfern::app {

/// An amount, a share or a date as a table shows it, and what its column is sorted by.
struct Figure {
    std::string text;
    std::optional<std::int64_t> order; ///< absent: it stands last, whichever way the column is sorted

    friend bool operator==(const Figure&, const Figure&) = default;
};

/// For a figure that does not apply.
inline constexpr const char* no_figure = "–";

} // namespace quillfern::app
