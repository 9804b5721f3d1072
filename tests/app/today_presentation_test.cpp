#include "app/pages/today_presentation.h"
#include "app/window/sidebar_presentation.h"

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

using grants::Day;
using grants::Grant;
using grants::GrantFile;
using testing::ElementsAre;
using testing::IsEmpty;

const Day today{2026, 9, 10};

Uuid id_of(std::uint8_t number)
{
    Uuid id;
    id.bytes[15] = number;
    return id;
}

/// An open request whose only date is its application's.
Grant due_on(std::uint8_t number, const std::string& title, const Day& day)
{
    Grant grant;
    grant.id = id_of(number);
    grant.title = title;
    grant.applicationDue = day;
    return grant;
}

GrantFile file_of(std::vector<Grant> grants)
{
    GrantFile file;
    for (Grant& grant : grants)
        file.grants.emplace_back(std::move(grant));
    return file;
}

std::vector<std::string> words_of(const std::vector<Day>& days)
{
    std::vector<std::string> words;
    for (const Day& day : days) {
        const AgendaRow row = today_presentation(file_of({due_on(1, "A", day)}), today).sections.at(0).rows.at(0);
        words.push_back(row.weekday + '|' + row.date + '|' + row.relative);
    }
    return words;
}

TEST(TodayPresentation, SaysDaysAsPeopleDo)
{
    EXPECT_THAT(words_of({{2026, 8, 30}, {2026, 9, 9}, today, {2026, 9, 11}, {2026, 9, 12}, {2027, 1, 1}}),
        ElementsAre("Sun|Aug 30|11 days late", "Wed|Sep 9|1 day late", "Thu|Sep 10|Today", "Fri|Sep 11|Tomorrow",
            "Sat|Sep 12|in 2 days", "Fri 2027|Jan 1|in 113 days"));
}

TEST(TodayPresentation, LeavesOutWhatARowDoesNotHave)
{
    Grant full = due_on(1, "Cold Storage", {2026, 9, 15});
    full.funderID = id_of(9);
    full.ask = grants::Money::from_units(85000);
    GrantFile file = file_of({full, due_on(2, "Vans", {2026, 9, 16})});
    grants::Funder funder;
    funder.id = id_of(9);
    funder.name = "Tessaly Health Trust";
    file.funders.emplace_back(funder);

    const auto rows = today_presentation(file, today).sections.at(0).rows;
    EXPECT_EQ(rows.at(0).line, "Application due · Tessaly Health Trust");
    EXPECT_EQ(rows.at(0).amount, "$85,000");
    EXPECT_EQ(rows.at(0).spoken,
        "Cold Storage, Application due, Tessaly Health Trust, Tuesday, September 15, 2026, in 5 days, $85,000");
    EXPECT_EQ(rows.at(1).line, "Application due");
    EXPECT_EQ(rows.at(1).amount, "");
}

TEST(TodayPresentation, ShowsOnlyBucketsThatHoldSomethingAndCountsTheUrgentOnes)
{
    const auto page = today_presentation(file_of({due_on(1, "Late", {2026, 9, 1}), due_on(2, "Soon", today),
                                             due_on(3, "Soon too", {2026, 9, 17}), due_on(4, "Far", {2027, 6, 1})}),
        today);
    std::vector<std::string> titles;
    for (const AgendaSection& section : page.sections)
        titles.push_back(section.title + ' ' + std::to_string(section.rows.size()));
    EXPECT_THAT(titles, ElementsAre("Overdue 1", "Next 7 days 2", "Later 1"));
    EXPECT_EQ(page.date, "Thursday, September 10, 2026");
    EXPECT_EQ(page.overdue, "1 overdue");
    EXPECT_EQ(page.upcoming, "2 due in the next 7 days");
}

TEST(TodayPresentation, AnEmptyFileHasNothingDue)
{
    const auto page = today_presentation({}, today);
    EXPECT_THAT(page.sections, IsEmpty());
    EXPECT_EQ(page.overdue, "");
    EXPECT_EQ(page.upcoming, "nothing due in the next 7 days");
}

const SidebarRow& row_of(const SidebarPresentation& sidebar, SidebarItem item)
{
    return sidebar.rows.at(static_cast<std::size_t>(item));
}

TEST(SidebarPresentation, BadgesCountWhatIsUrgentAndSayWhenSomethingIsOverdue)
{
    const auto soon = sidebar_presentation(file_of({due_on(1, "Soon", today)}), today);
    EXPECT_EQ(row_of(soon, SidebarItem::today).spoken, "Today, 1");
    const auto late = sidebar_presentation(file_of({due_on(1, "Soon", today), due_on(2, "Late", {2026, 9, 9})}), today);
    EXPECT_EQ(row_of(late, SidebarItem::today).spoken, "Today, 2, some overdue");
    EXPECT_EQ(row_of(late, SidebarItem::reports).spoken, "Reports");
}

TEST(SidebarPresentation, AReportThatIsLateAndNotBegunCountsOnce)
{
    Grant grant;
    grant.id = id_of(1);
    grant.stage = grants::Stage::awarded;
    const auto owe = [&grant](std::uint8_t number, const Day& due, grants::ReportStatus status) {
        grants::ReportPeriod report;
        report.id = id_of(number);
        report.due = due;
        report.status = status;
        grant.reports.push_back(report);
    };
    owe(2, {2026, 9, 1}, grants::ReportStatus::notStarted); // late
    owe(3, {2026, 9, 12}, grants::ReportStatus::notStarted); // its draft should have been started
    owe(4, {2026, 9, 12}, grants::ReportStatus::drafting); // under way
    owe(5, {2026, 9, 1}, grants::ReportStatus::submitted);
    const auto sidebar = sidebar_presentation(file_of({grant}), today);
    EXPECT_EQ(row_of(sidebar, SidebarItem::reports).spoken, "Reports, 2, some overdue");
}

} // namespace
} // namespace quillfern::app
