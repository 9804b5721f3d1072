#pragma once

#include <optional>

namespace quillfern::app {

enum class SidebarForm {
    hidden,
    strip, ///< icons only
    full,
};

/// How the parts of a window share its width. All lengths are of the design, before scaling.
struct WindowLayout {
    SidebarForm sidebar = SidebarForm::full;
    int rightColumn = 0; ///< the width of a page's right column; 0: it goes below the main column

    friend bool operator==(const WindowLayout&, const WindowLayout&) = default;
};

inline constexpr int narrow_below = 1280; ///< the sidebar becomes a strip, right columns get narrower
inline constexpr int slim_below = 1100; ///< right columns go below

/// `sidebar_open` is what the user asked for with the sidebar button; absent: nothing yet, the width decides.
constexpr WindowLayout window_layout(int width, std::optional<bool> sidebar_open)
{
    const bool narrow = width < narrow_below;
    const SidebarForm closed = narrow ? SidebarForm::strip : SidebarForm::hidden;
    WindowLayout layout;
    layout.sidebar = sidebar_open.value_or(!narrow) ? SidebarForm::full : closed;
    layout.rightColumn = width < slim_below ? 0 : narrow ? 280 : 316;
    return layout;
}

} // namespace quillfern::app
