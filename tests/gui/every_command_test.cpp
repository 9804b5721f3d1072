#include "app/document/open_document.h"
#include "app/window/commands.h"
#include "desktop/qt_text.h"
#include "window_fixture.h"

#include <QAction>
#include <QDialog>
#include <QMenuBar>

namespace quillfern::app {
namespace {

/// What would leave the program or the test is not given.
bool is_given(std::string_view id)
{
    return id != "quit" && id != "closeWindow" && id != "emailSupport" && id != "checkForUpdates";
}

TEST_F(WindowTest, EveryMenuItemActsOrIsDisabledAndLeavesTheDocumentWhole)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 15}})));
    const QuillfernDocument before = window.document().document().value();
    for (const Command& command : commands()) {
        auto* action = window.findChild<QAction*>(desktop::to_qt(command.row.id));
        ASSERT_TRUE(action) << command.row.id;
        EXPECT_TRUE(command.act || !action->isEnabled()) << command.row.id << " pretends to act";
        if (!action->isEnabled() || !is_given(command.row.id))
            continue;
        action->trigger();
        QCoreApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(widget))
                dialog->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(window.document().document().value(), before);
}

/// The titles are a promise: people who know the program from another desktop find each where it was.
TEST_F(WindowTest, TheMenusStandInTheirOrderWithTheirTitlesAndKeys)
{
    const MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    QStringList menus;
    for (const QAction* menu : window.menuBar()->actions())
        menus.append(menu->text().remove(QLatin1Char('&')));
    EXPECT_EQ(menus, QStringList({"File", "Edit", "Grant", "Meeting", "Go", "Window", "Help"}));
    QStringList file;
    for (const QAction* action : window.menuBar()->actions().front()->menu()->actions())
        if (action->isVisible() && !action->isSeparator())
            file.append(action->text()
                + (action->shortcut().isEmpty() ? QString() : QLatin1Char('|') + action->shortcut().toString()));
    EXPECT_EQ(file,
        QStringList({"New|Ctrl+N", "Open…|Ctrl+O", "Open Recent", "Open the Sample Organization",
            "New Grant|Ctrl+Alt+N", "New Meeting…|Ctrl+Alt+Shift+N", "New Motion…|Ctrl+Alt+M",
            "New Action Item…|Ctrl+Alt+Shift+A", "Add Board Member…", "Add Person…",
            "Import Spreadsheet (CSV)…|Ctrl+Shift+I", "Import Marrowind Board…", "Save|Ctrl+S",
            "Duplicate|Ctrl+Shift+S", "Rename…", "Move To…", "Revert to Saved", "Export Board Summary PDF…|Ctrl+E",
            "Export Client Status Report…", "Export Grants Spreadsheet (CSV)…", "Export Calendar (.ics)…|Ctrl+Shift+E",
            "Add Deadlines to Calendar…", "Export Minutes PDF…|Ctrl+Alt+E", "Export Agenda PDF…",
            "Export Meeting Notice PDF…", "Add Meeting to Calendar (.ics)…", "Export Action Items (CSV)…",
            "Export Hand-off Bundle…", "Print Board Summary…|Ctrl+P", "Close Window|Ctrl+W", "Quit Quillfern|Ctrl+Q"}));
}

} // namespace
} // namespace quillfern::app
