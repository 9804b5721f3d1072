#pragma once

#include <array>
#include <string_view>

namespace quillfern::desktop {

/// The menus of the menu bar, in its order.
enum class MenuId { file, edit, grant, meeting, go, window, help };

inline constexpr std::array<std::string_view, 7> menu_titles = {
    "File", "Edit", "Grant", "Meeting", "Go", "Window", "Help"};

/// One command as a menu shows it. The words are what the user reads and the shortcut what they press; what it does and
/// when it can is the application's, which asks for it by the id.
///
/// Rows of one menu with the same `group` stand together; a rule separates it from the next group.
struct CommandRow {
    std::string_view id; ///< unique; also the object name of its action
    MenuId menu;
    int group;
    std::string_view title;
    std::string_view shortcut; ///< "Ctrl+Alt+N"; empty: none
};

} // namespace quillfern::desktop
