#include "app/welcome_sheet.h"
#include "window_fixture.h"

#include <QAbstractButton>

namespace quillfern::app {
namespace {

class WelcomeFlowTest : public WindowTest {
protected:
    WelcomeFlowTest()
    {
        program_.preferences().edit([](PreferenceValues& values) { values.welcomeDone = false; });
        program_.show_start();
        settle();
    }

    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    WelcomeSheet* sheet()
    {
        for (MainWindow* window : program_.windows())
            if (auto* welcome = window->findChild<WelcomeSheet*>())
                return welcome;
        return nullptr;
    }

    bool is_done() { return program_.preferences().values().welcomeDone; }
};

TEST_F(WelcomeFlowTest, AFirstStartShowsItOverAnEmptyFileAndDismissingItIsForGood)
{
    ASSERT_EQ(program_.windows().size(), 1);
    ASSERT_TRUE(sheet());
    EXPECT_TRUE(program_.windows().front()->model().state().sheet);
    EXPECT_FALSE(is_done());
    QTest::keyClick(sheet(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(is_done());
    EXPECT_FALSE(program_.windows().front()->model().state().sheet);
    program_.new_document();
    settle();
    EXPECT_FALSE(sheet());
}

TEST_F(WelcomeFlowTest, TheSampleOpensInAWindowOfItsOwnWithoutASecondWelcome)
{
    for (QAbstractButton* row : sheet()->findChildren<QAbstractButton*>())
        if (row->text() == QLatin1String("Open the Sample Organization"))
            row->click();
    settle();
    ASSERT_EQ(program_.windows().size(), 2);
    EXPECT_FALSE(sheet());
    EXPECT_FALSE(program_.windows().front()->document().document().is_modified());
    EXPECT_FALSE(program_.windows().front()->document().document().file().grants.size())
        << "the user's own file stays as it is";
}

TEST_F(WelcomeFlowTest, TheSettingBringsItBack)
{
    sheet()->reject();
    settle();
    program_.preferences().edit([](PreferenceValues& values) { values.welcomeDone = false; });
    program_.new_document();
    settle();
    EXPECT_TRUE(sheet());
}

} // namespace
} // namespace quillfern::app
