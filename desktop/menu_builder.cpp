#include "desktop/menu_builder.h"

#include "desktop/qt_text.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <cstddef>
#include <string>

namespace quillfern::desktop {
namespace {

/// An ampersand in a title is a letter of the title, never the mark of an access key.
QString menu_text(std::string_view title)
{
    return to_qt(title).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QAction* make_action(QMainWindow& window, const CommandRow& row, const WindowMenus::Run& run)
{
    auto* action = new QAction(menu_text(row.title), &window);
    action->setObjectName(to_qt(row.id));
    action->setMenuRole(QAction::NoRole);
    if (!row.shortcut.empty())
        action->setShortcut(QKeySequence::fromString(to_qt(row.shortcut), QKeySequence::PortableText));
    QObject::connect(action, &QAction::triggered, &window, [run, id = std::string(row.id)] { run(id); });
    return action;
}

} // namespace

WindowMenus::WindowMenus(QMainWindow& window, std::span<const CommandRow> rows, const Run& run) : rows_(rows)
{
    for (const std::string_view title : menu_titles)
        menus_.push_back(window.menuBar()->addMenu(QLatin1Char('&') + to_qt(title)));
    std::vector<int> last_group(menus_.size(), -1);
    for (const CommandRow& row : rows_) {
        const auto place = static_cast<std::size_t>(row.menu);
        if (last_group[place] != -1 && last_group[place] != row.group)
            menus_[place]->addSeparator();
        last_group[place] = row.group;
        actions_.push_back(make_action(window, row, run));
        menus_[place]->addAction(actions_.back());
    }
}

QAction* WindowMenus::action(std::string_view id) const
{
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].id == id)
            return actions_[i];
    return nullptr;
}

QMenu* WindowMenus::menu(MenuId id) const
{
    return menus_[static_cast<std::size_t>(id)];
}

std::vector<QAction*> WindowMenus::group(MenuId menu, int group) const
{
    std::vector<QAction*> members;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].menu == menu && rows_[i].group == group)
            members.push_back(actions_[i]);
    return members;
}

void WindowMenus::update(const Condition& offered, const Condition& enabled)
{
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        actions_[i]->setVisible(offered(rows_[i].id));
        actions_[i]->setEnabled(enabled(rows_[i].id));
    }
}

} // namespace quillfern::desktop
