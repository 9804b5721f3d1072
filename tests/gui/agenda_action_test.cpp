#include "app/document/document.h"
#include "app/pages/agenda_edit.h"
#include "app/pages/today_page.h"
#include "grants/sample_organization.h"

#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

const grants::Day today{2026, 9, 10};

/// The Today page of the sample organization, with its edits going into a document.
class AgendaActionTest : public testing::Test {
protected:
    AgendaActionTest()
    {
        QObject::connect(&document_, &Document::changed, &page_, [this] { show(); });
        QObject::connect(&page_, &TodayPage::action_requested, &document_, [this](const QString& id) {
            if (auto edit = agenda_edit(document_.file(), id.toStdString(), today, Instant{1}))
                document_.edit(QString::fromStdString(edit->label), std::move(edit->next));
        });
        page_.resize(1000, 700);
        page_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&page_));
        page_.activateWindow();
        show();
        list_->setFocus();
    }

    void show() { page_.show_presentation(today_presentation(document_.file(), today)); }

    void choose(const QString& line)
    {
        list_->setCurrentIndex({});
        for (int row = 0; row < list_->model()->rowCount() && !list_->currentIndex().isValid(); ++row)
            if (list_->model()->index(row, 0).data(Qt::AccessibleTextRole).toString().startsWith(line))
                list_->setCurrentIndex(list_->model()->index(row, 0));
        EXPECT_TRUE(chosen().startsWith(line)) << chosen().toStdString();
    }

    QString chosen() const { return list_->currentIndex().data(Qt::AccessibleTextRole).toString(); }

    /// The one that can be seen; null: none.
    QPushButton* button() const
    {
        QCoreApplication::processEvents(); // laid out
        QPushButton* shown = nullptr;
        for (QPushButton* each : page_.findChildren<QPushButton*>(QStringLiteral("rowAction"))) {
            EXPECT_FALSE(shown && each->isVisible()) << "two rows with a button";
            shown = each->isVisible() ? each : shown;
        }
        return shown;
    }

    Document document_{QuillfernDocument{grants::sample_organization(today, grants::Lang::en)}};
    TodayPage page_;
    QListView* list_ = page_.findChild<QListView*>(QStringLiteral("agenda"));
};

TEST_F(AgendaActionTest, OnlyTheChosenRowOffersWhatCanBeDoneWithIt)
{
    EXPECT_FALSE(button()) << "nothing is chosen yet";
    const struct {
        const char* line;
        const char* title;
    } cases[] = {
        {"Senior Nutrition Partnership, Report due", "Mark Submitted"},
        {"Senior Nutrition Partnership, Payment expected", "Mark Received"},
        {"Mobile Pantry Operations, Milestone", "Mark Done"},
        {"Weekend Backpacks 2025–26, Start report draft", "Start Draft"},
        {"Senior Box Delivery, LOI due", "Mark Submitted"},
    };
    for (const auto& [line, title] : cases) {
        choose(QString::fromUtf8(line));
        ASSERT_TRUE(button()) << line;
        EXPECT_EQ(button()->text(), title);
        EXPECT_TRUE(list_->visualRect(list_->currentIndex()).contains(button()->geometry())) << line;
        EXPECT_EQ(button()->accessibleDescription(), chosen());
    }
    choose("Walk-in Freezer Replacement, Decision expected");
    EXPECT_FALSE(button());
}

TEST_F(AgendaActionTest, SpaceActsAndTheNextRowIsChosen)
{
    choose("Senior Nutrition Partnership, Report due");
    const grants::GrantFile before = document_.file();
    QTest::keyClick(list_, Qt::Key_Space);
    EXPECT_EQ(document_.undo_stack().undoText(), "Mark Submitted");
    EXPECT_TRUE(chosen().startsWith("Senior Nutrition Partnership, Payment expected")) << chosen().toStdString();
    EXPECT_EQ(page_.focusWidget(), list_);

    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QCoreApplication::sendEvent(list_, &held);
    EXPECT_EQ(document_.undo_stack().count(), 1) << "a key held down acts once";

    document_.undo_stack().undo();
    EXPECT_EQ(document_.file(), before);
    EXPECT_TRUE(chosen().startsWith("Senior Nutrition Partnership, Payment expected"));
}

TEST_F(AgendaActionTest, AClickActsOnceEvenWhenTheNextRowMovesUnderThePointer)
{
    choose("Cold Storage Upgrade, Payment expected");
    QWidget* view = list_->viewport();
    QPushButton* first = button();
    ASSERT_TRUE(first);
    const QPoint place = first->geometry().center();
    QTest::mouseClick(first, Qt::LeftButton);
    EXPECT_EQ(document_.undo_stack().count(), 1);
    EXPECT_TRUE(chosen().startsWith("Mobile Pantry Route Expansion")) << chosen().toStdString();
    ASSERT_TRUE(button());
    ASSERT_EQ(view->childAt(place), button());
    const QPointF local = button()->rect().center();
    QMouseEvent again(QEvent::MouseButtonDblClick, local, button()->mapToGlobal(local), Qt::LeftButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(button(), &again);
    QTest::mouseRelease(button(), Qt::LeftButton);
    EXPECT_EQ(document_.undo_stack().count(), 1);
    EXPECT_EQ(page_.focusWidget(), list_);
}

TEST_F(AgendaActionTest, TheKeyboardReachesTheButtonAndComesBackToTheListWhenItGoes)
{
    choose("Senior Nutrition Partnership, Payment expected");
    ASSERT_TRUE(button());
    button()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button(), Qt::Key_Space);
    EXPECT_EQ(document_.undo_stack().undoText(), "Mark Received");
    EXPECT_EQ(page_.focusWidget(), list_);
}

TEST_F(AgendaActionTest, ADocumentThatCannotBeChangedOffersNothing)
{
    choose("Senior Nutrition Partnership, Payment expected");
    page_.set_actions_offered(false);
    EXPECT_FALSE(button());
    QTest::keyClick(list_, Qt::Key_Space);
    EXPECT_EQ(document_.undo_stack().count(), 0);
    page_.set_actions_offered(true);
    EXPECT_TRUE(button());
}

TEST_F(AgendaActionTest, TheLastRowLeavesTheOneBeforeItChosen)
{
    const int last = list_->model()->rowCount() - 1;
    list_->setCurrentIndex(list_->model()->index(last, 0));
    ASSERT_TRUE(button());
    QTest::keyClick(list_, Qt::Key_Space);
    ASSERT_LT(list_->model()->rowCount(), last + 1);
    EXPECT_EQ(list_->currentIndex().row(), list_->model()->rowCount() - 1);
    document_.edit("Clear", grants::GrantFile());
    EXPECT_FALSE(button());
}

} // namespace
} // namespace quillfern::app
