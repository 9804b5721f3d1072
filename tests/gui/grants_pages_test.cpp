#include "app/pages/funder_list.h"
#include "desktop/stat_tiles.h"
#include "desktop/table_totals.h"
#include "desktop/table_view.h"
#include "window_fixture.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillfern::app {
namespace {

using desktop::TableView;

/// A window on the sample organization.
class GrantsPagesTest : public WindowTest {
protected:
    GrantsPagesTest()
    {
        program_.open_sample();
        window_ = program_.windows().back();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_));
    }

    void give(const char* command) { window_->findChild<QAction*>(QLatin1String(command))->trigger(); }

    /// The page on show, by its name.
    QWidget& page(const char* name)
    {
        auto* found = window_->findChild<QWidget*>(QLatin1String(name));
        EXPECT_TRUE(found && found->isVisible()) << name;
        return *found;
    }

    static QStringList titles(const QWidget& page)
    {
        QStringList shown;
        const auto* table = page.findChild<TableView*>();
        for (int row = 0; row < table->model()->rowCount(); ++row)
            shown.append(table->model()->index(row, 0).data().toString());
        return shown;
    }

    QStringList grants() { return titles(page("allGrantsPage")); }

    QLineEdit& search() { return *window_->findChild<QLineEdit*>(QStringLiteral("search")); }

    bool says(const QString& text) const
    {
        const QList<QLabel*> labels = window_->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
            [&text](const QLabel* label) { return label->isVisible() && label->text() == text; });
    }

    QPushButton* button(const QString& text) const
    {
        for (auto* candidate : window_->findChildren<QPushButton*>())
            if (candidate->isVisible() && candidate->text() == text)
                return candidate;
        return nullptr;
    }

    MainWindow* window_ = nullptr;
};

TEST_F(GrantsPagesTest, ThePipelineShowsTheYearsFiguresAndListsTheStageThatIsChosen)
{
    give("showPipeline");
    QWidget& shown = page("pipelinePage");
    EXPECT_TRUE(shown.findChild<desktop::StatTiles*>()->accessibleName().startsWith(
        "Open requests: $427,500, 8 grants asked for; Weighted by chance: $138,625"));
    EXPECT_EQ(titles(shown).size(), 8);
    auto* chart = shown.findChild<QWidget*>("pipelineChart");
    QTest::keyClick(chart, Qt::Key_Down);
    EXPECT_EQ(titles(shown), QStringList({"Community Garden, Phase II", "General Operating 2027"}));
    EXPECT_EQ(chart->accessibleDescription(), "Prospect, 2 grants, asked $65,000, weighted $6,500, chosen");
    QTest::keyClick(chart, Qt::Key_Escape);
    EXPECT_EQ(titles(shown).size(), 8);
}

TEST_F(GrantsPagesTest, AllGrantsFollowTheFiscalYearTheStageAndTheHeads)
{
    give("showGrants");
    EXPECT_EQ(grants().size(), 13);
    EXPECT_EQ(page("allGrantsPage").findChild<desktop::TableTotals*>()->accessibleName(),
        "13 grants, asked $592,500, awarded $105,000");
    page("allGrantsPage").findChild<TableView*>()->sortByColumn(2, Qt::DescendingOrder);
    EXPECT_EQ(grants().first(), "Refrigerated Van");
    auto* stages = window_->findChild<QComboBox*>("stageFilter");
    stages->setCurrentIndex(7);
    Q_EMIT stages->activated(7);
    EXPECT_EQ(grants(), QStringList({"Youth Cooking Club"}));
    auto* years = window_->findChild<QComboBox*>("fiscalYear");
    years->setCurrentText("FY2026");
    Q_EMIT years->activated(years->currentIndex());
    EXPECT_TRUE(says("No grants in this stage"));
    QTest::mouseClick(button("Show All Stages"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(grants().size(), 4);
}

TEST_F(GrantsPagesTest, TheChosenGrantStaysChosenWhenTheRowsAreSortedAnew)
{
    give("showGrants");
    auto* table = page("allGrantsPage").findChild<TableView*>();
    table->selectRow(4);
    const QString chosen = table->chosen();
    table->sortByColumn(0, Qt::AscendingOrder);
    EXPECT_EQ(table->chosen(), chosen);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
}

TEST_F(GrantsPagesTest, TypingInTheSearchFieldShowsWhatMatches)
{
    give("find");
    ASSERT_TRUE(search().hasFocus());
    QTest::keyClicks(&search(), "PEMBERWÍCK");
    EXPECT_EQ(grants().size(), 3);
    QTest::keyClicks(&search(), " bakery");
    EXPECT_TRUE(says("No grants match “PEMBERWÍCK bakery”"));
    QTest::mouseClick(button("Clear Search"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(grants().size(), 13);
    EXPECT_EQ(search().text(), "");
    search().setFocus();
    QTest::keyClicks(&search(), "van");
    QTest::keyClick(&search(), Qt::Key_Escape);
    EXPECT_EQ(search().text(), "");
    QTest::keyClick(&search(), Qt::Key_Escape);
    EXPECT_TRUE(page("allGrantsPage").isAncestorOf(window_->focusWidget()));
}

TEST_F(GrantsPagesTest, FundersShowTheRecordOfTheChosenOne)
{
    give("showFunders");
    QWidget& shown = page("fundersPage");
    auto* list = shown.findChild<FunderList*>();
    EXPECT_EQ(list->model()->rowCount(), 9);
    EXPECT_TRUE(says("Holloway Credit Union"));
    list->setCurrentIndex(list->model()->index(4, 0));
    EXPECT_TRUE(says("Private foundation · EIN 00-7714302"));
    EXPECT_EQ(titles(shown), QStringList({"Senior Box Delivery", "Kitchen Training Program"}));
}

TEST_F(GrantsPagesTest, EmptyFilesSayWhatThePagesAreFor)
{
    window_ = &open(write_package("Empty.quillfern", "{}"));
    const auto heading = [this](const char* command, const char* text) {
        give(command);
        EXPECT_TRUE(says(QString::fromUtf8(text))) << command;
    };
    heading("showPipeline", "No grants yet");
    heading("showGrants", "No grants yet");
    heading("showFunders", "No funders yet");
}

} // namespace
} // namespace quillfern::app
