#include "app/first_paint.h"
#include "app/window/welcome_sheet.h"
#include "window_fixture.h"

#include <QAbstractButton>

namespace quillfern::app {
namespace {

class WelcomeFlowTest : public WindowTest {
protected:
    WelcomeFlowTest()
    {
        program_.preferences().edit([](PreferenceValues& values) { values.welcomeDone = false; });
        FirstPaint::after(program_, [this] { painted_first_ = !sheet(); });
        program_.show_start();
        settle();
    }

    /// A sheet comes once its window is on the screen.
    static void settle(const Application& program)
    {
        for (MainWindow* window : program.windows())
            ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void settle() { settle(program_); }

    static WelcomeSheet* sheet_of(const Application& program)
    {
        for (MainWindow* window : program.windows())
            if (auto* welcome = window->findChild<WelcomeSheet*>())
                return welcome;
        return nullptr;
    }

    WelcomeSheet* sheet() { return sheet_of(program_); }

    bool painted_first_ = false;

    bool is_done() { return program_.preferences().values().welcomeDone; }
};

TEST_F(WelcomeFlowTest, AFirstStartShowsItOverAnEmptyFileAndDismissingItIsForGood)
{
    ASSERT_EQ(program_.windows().size(), 1);
    ASSERT_TRUE(sheet());
    EXPECT_TRUE(painted_first_) << "the sheet waits until the window is on the screen";
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

TEST_F(WelcomeFlowTest, SettingsThatCannotBeReadAreToldOnceTheWelcomeIsLeft)
{
    const QString settings = folder_.filePath("damaged.conf");
    QFile file(settings);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\xff\xfe");
    file.close();
    Application program(Surroundings{.source = source_,
        .clock = [this] { return today_; },
        .state_folder = folder_.filePath("other state").toStdString(),
        .settings_file = settings});
    program.show_start();
    settle(program);
    const auto toast = [&program](qsizetype window) {
        const auto& told = program.windows()[window]->model().state().toast;
        return told ? told->text : std::string();
    };
    EXPECT_EQ(toast(0), "");
    sheet_of(program)->reject();
    EXPECT_THAT(toast(0), testing::StartsWith("The settings couldn’t be read"));
    program.new_document();
    settle(program);
    EXPECT_EQ(toast(1), "");
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
