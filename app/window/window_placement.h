#pragma once

#include <QByteArray>

#include <optional>

namespace quillfern::app {

/// Where the last document window stood and how its sidebar was; the next one opens like it.
struct WindowPlacement {
    QByteArray geometry; ///< empty: there was none yet
    std::optional<bool> sidebarOpen; ///< absent: the user has not said
    int sidebarWidth = 0; ///< in pixels; 0: as designed
};

WindowPlacement last_placement();
void remember_placement(const WindowPlacement& placement);

} // namespace quillfern::app
