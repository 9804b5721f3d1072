#include "desktop/alert.h"
#include "desktop/facts_line.h"
#include "desktop/theme.h"
#include "window_fixture.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

namespace quillfern::app {
namespace {

using testing::ElementsAre;

TEST_F(WindowTest, APackageOpensInAWindowThatListsWhatIsDue)
{
    const MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 8}, {2026, 9, 15}})));
    EXPECT_EQ(window.windowTitle(), "Linden Ferry Community Pantry[*] — Quillfern");
    EXPECT_EQ(lines_of(agenda_of(window)),
        QStringList({"Overdue, 1", "A, Application due, Tuesday, September 8, 2026, 2 days late", "Next 7 days, 1",
            "B, Application due, Tuesday, September 15, 2026, in 5 days"}));
}

TEST_F(WindowTest, ADocumentOpensOnceWhateverItsPathIsCalled)
{
    const QString path = write_package("Pantry.quillfern", file_with_days({}));
    const MainWindow& first = open(path);
    EXPECT_EQ(&open(path + "/Quillfern.json"), &first);
    EXPECT_EQ(&open(path + "/../Pantry.quillfern/"), &first);
    EXPECT_EQ(program_.windows().size(), 1);
    open(write_package("Other.quillfern", file_with_days({})));
    EXPECT_EQ(program_.windows().size(), 2);
}

TEST_F(WindowTest, APackageThatIsRefusedOpensNoWindowAndSaysWhy)
{
    struct Case {
        std::string json;
        QString title;
        QString message;
    };
    const Case cases[] = {
        {"{\"grants\": ", "This file couldn’t be read.",
            "Pantry.quillfern is missing or damaged. If you have a backup or a Time Machine copy, open that one."},
        {"{\"formatVersion\": 3}", "This file was saved by a newer version of Quillfern.",
            "Update the app (Quillfern › Check for Updates…) and open it again. Nothing in the file was changed."},
    };
    for (const Case& c : cases) {
        program_.open(write_package("Pantry.quillfern", c.json), nullptr);
        EXPECT_TRUE(program_.windows().isEmpty());
        QWidget* alert = QApplication::activeModalWidget();
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible() && qobject_cast<desktop::Alert*>(widget))
                alert = widget;
        ASSERT_TRUE(alert);
        EXPECT_EQ(alert->findChild<QLabel*>("alertTitle")->text(), c.title);
        EXPECT_EQ(alert->findChild<QLabel*>("alertMessage")->text(), c.message);
        alert->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(WindowTest, TheKeyboardReachesTheRowsAndSkipsTheHeadings)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 8}, {2026, 9, 15}})));
    QListView& list = agenda_of(window);
    QWidget* at = window.focusWidget();
    for (int i = 0; i < 3 && at != &list; ++i) {
        QTest::keyClick(at, Qt::Key_F6);
        at = window.focusWidget();
    }
    ASSERT_EQ(at, &list);
    QStringList reached;
    QTest::keyClick(&list, Qt::Key_Home);
    reached.append(list.currentIndex().data().toString());
    QTest::keyClick(&list, Qt::Key_Down);
    reached.append(list.currentIndex().data().toString());
    QTest::keyClick(&list, Qt::Key_PageUp);
    reached.append(list.currentIndex().data().toString());
    EXPECT_EQ(reached, QStringList({"A", "B", "A"}));
}

TEST_F(WindowTest, TheSchemeChangesWhileTheWindowIsOpen)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 8}})));
    auto* theme = qApp->findChild<desktop::Theme*>();
    const auto page_color = [&window] {
        const QPixmap picture = window.grab();
        return picture.toImage().pixelColor(picture.width() - 20, picture.height() - 20);
    };
    EXPECT_EQ(page_color(), desktop::tokens(desktop::Scheme::light)[desktop::Role::page]);
    theme->choose(desktop::Theme::Choice::dark);
    EXPECT_EQ(page_color(), desktop::tokens(desktop::Scheme::dark)[desktop::Role::page]);
    theme->choose(desktop::Theme::Choice::light);
    EXPECT_EQ(page_color(), desktop::tokens(desktop::Scheme::light)[desktop::Role::page]);
}

TEST_F(WindowTest, ANewDayRedrawsThePageAndKeepsTheChosenRow)
{
    const MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 10}, {2026, 9, 11}})));
    QListView& list = agenda_of(window);
    list.setCurrentIndex(list.model()->index(2, 0));
    today_ = {2026, 9, 11};
    program_.day_watch().look();
    EXPECT_EQ(lines_of(list),
        QStringList({"Overdue, 1", "A, Application due, Thursday, September 10, 2026, 1 day late", "Next 7 days, 1",
            "B, Application due, Friday, September 11, 2026, Today"}));
    EXPECT_EQ(list.currentIndex().data().toString(), "B");
    EXPECT_EQ(window.findChild<desktop::FactsLine*>()->accessibleName(),
        "Friday, September 11, 2026 · 1 overdue, 1 due in the next 7 days");
}

TEST_F(WindowTest, APackageDroppedOnAWindowOpens)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(write_package("Other.quillfern", file_with_days({}))),
        QUrl::fromLocalFile(folder_.filePath("letter.txt"))});
    QDragEnterEvent enter({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDropEvent drop({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
    EXPECT_EQ(program_.windows().size(), 2);
}

TEST_F(WindowTest, AnEmptyFileSaysWhatToDo)
{
    const MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    QStringList shown;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible())
            shown.append(label->text());
    EXPECT_TRUE(shown.contains("Nothing is due"));
    EXPECT_TRUE(shown.contains("Add a grant and its dates; what is due next shows here."));
}

TEST_F(WindowTest, ClosingAWindowEndsItsDocumentAndRemembersItsPlace)
{
    const QString path = write_package("Pantry.quillfern", file_with_days({}));
    MainWindow* window = &open(path);
    window->resize(1111, 700);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(program_.windows().isEmpty());
    const MainWindow& next = open(path);
    EXPECT_EQ(next.height(), 700);
    EXPECT_EQ(next.width(), next.minimumWidth()) << "the screen here is narrower than the window was";
}

} // namespace
} // namespace quillfern::app
