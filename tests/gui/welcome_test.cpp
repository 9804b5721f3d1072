#include "app/recent_row.h"
#include "app/settings/recent_documents.h"
#include "app/settings/settings_file.h"
#include "app/start_window.h"
#include "app/window/welcome_sheet.h"
#include "window_fixture.h"

#include <QPointer>
#include <QPushButton>

namespace quillfern::app {
namespace {

/// The welcome sheet, and what came of it.
class WelcomeTest : public testing::Test {
protected:
    WelcomeSheet* show(const WelcomeOffers& offers)
    {
        auto* sheet = new WelcomeSheet(offers, nullptr);
        const auto tell = [this, sheet](void (WelcomeSheet::*signal)(), const char* name) {
            QObject::connect(sheet, signal, sheet, [this, sheet, name] {
                EXPECT_FALSE(sheet->isVisible()) << "what follows may open a sheet of its own";
                told_.append(name);
            });
        };
        tell(&WelcomeSheet::sample_chosen, "sample");
        tell(&WelcomeSheet::import_csv_chosen, "csv");
        tell(&WelcomeSheet::import_board_chosen, "board");
        tell(&WelcomeSheet::dismissed, "dismissed");
        QObject::connect(sheet, &QDialog::finished, sheet, [this] { ++finished_; });
        sheet->open();
        return sheet;
    }

    QStringList told_;
    int finished_ = 0;
};

TEST_F(WelcomeTest, EachWayOutIsToldOnce)
{
    for (const auto& [button, expected] : {std::pair{"welcomeSample", "sample"}, {"welcomeCSV", "csv"},
             {"welcomeBoard", "board"}, {"welcomeEmpty", "dismissed"}}) {
        told_.clear();
        show({true, true})->findChild<QAbstractButton*>(QLatin1String(button))->click();
        EXPECT_EQ(told_, QStringList(expected));
    }
    told_.clear();
    QTest::keyClick(show({}), Qt::Key_Escape);
    EXPECT_EQ(told_, QStringList("dismissed"));
    EXPECT_EQ(finished_, 5);
}

TEST_F(WelcomeTest, ReturnOpensTheSampleAndWhatCannotBeDoneIsGreyed)
{
    WelcomeSheet* sheet = show({false, true});
    EXPECT_FALSE(sheet->findChild<QAbstractButton*>("welcomeCSV")->isEnabled());
    EXPECT_TRUE(sheet->findChild<QAbstractButton*>("welcomeBoard")->isEnabled());
    QTest::keyClick(sheet->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(told_, QStringList("sample"));
}

TEST_F(WindowTest, TheStartWindowOpensRecentDocumentsAndGreysTheMissing)
{
    SettingsFile file(folder_.filePath("recent.conf"));
    RecentDocuments recent(file);
    const QPointer<StartWindow> start = new StartWindow(program_, &recent);
    start->show();
    auto& part = *start->findChild<QWidget*>("recentDocuments");
    EXPECT_FALSE(part.isVisible());
    recent.add(folder_.filePath("gone.quillfern"));
    recent.add(write_package("Pantry.quillfern", file_with_days({})));
    EXPECT_TRUE(part.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto rows = part.findChildren<RecentRow*>();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]->text(), "Pantry");
    EXPECT_FALSE(rows[1]->isEnabled());
    EXPECT_THAT(rows[1]->accessibleDescription().toStdString(), testing::StartsWith("Not there now"));
    rows[0]->click();
    EXPECT_EQ(program_.windows().size(), 1);
    delete start;
}

} // namespace
} // namespace quillfern::app
