#pragma once

#include "desktop/command.h"

#include <QKeySequence>
#include <QString>

#include <functional>
#include <span>
#include <string_view>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace quillfern::desktop {

/// The actions of one window, made from a table of commands.
class WindowMenus {
public:
    using Run = std::function<void(std::string_view id)>;

    /// Fills the window's menu bar. `run` is called with the id of a command that the user gives.
    WindowMenus(QMainWindow& window, std::span<const CommandRow> rows, const Run& run);

    QAction* action(std::string_view id) const; ///< null when the table has no such command
    QMenu* menu(MenuId id) const;

    /// The actions of one group of a menu, for a tool button's menu.
    std::vector<QAction*> group(MenuId menu, int group) const;

    using Condition = std::function<bool(std::string_view id)>;

    /// Shows the commands that are offered now, and enables those that can act.
    void update(const Condition& offered, const Condition& enabled);

private:
    std::span<const CommandRow> rows_;
    std::vector<QAction*> actions_; ///< one a row, in the table's order
    std::vector<QMenu*> menus_; ///< by MenuId
};

} // namespace quillfern::desktop
