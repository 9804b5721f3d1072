#include "grants/agenda.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace quillfern::grants {
namespace {

using testing::ElementsAre;

Uuid id_of(std::uint8_t number)
{
    Uuid id;
    id.bytes[15] = number;
    return id;
}

GrantFile file_of(std::vector<Grant> grants)
{
    GrantFile file;
    for (Grant& grant : grants)
        file.grants.emplace_back(std::move(grant));
    return file;
}

/// A grant with every kind of date, none of them done.
Grant example_grant(Stage stage)
{
    Grant grant;
    grant.id = id_of(1);
    grant.title = "Cold Storage";
    grant.stage = stage;
    grant.ask = Money{500000};
    grant.loiDue = Day{2025, 1, 1};
    grant.applicationDue = Day{2025, 2, 1};
    grant.decisionExpected = Day{2025, 3, 1};
    ReportPeriod report;
    report.id = id_of(2);
    report.title = "Final report";
    report.due = {2025, 6, 30};
    grant.reports = {report};
    Payment payment;
    payment.id = id_of(3);
    payment.expected = {2025, 5, 1};
    payment.amount = Money{250000};
    payment.note = "First half";
    grant.payments = {payment};
    grant.milestones = {{id_of(4), "Site visit", OffsetFrom{-7, DateAnchor::decision}, false}};
    return grant;
}

/// One letter a kind, in agenda order: Loi, Application, Decision, draft (w for writing), Report, Payment, Milestone;
/// small when done.
std::string kinds(const std::vector<AgendaItem>& items)
{
    std::string letters;
    for (const AgendaItem& item : items) {
        const char letter = "LADWRPM"[static_cast<std::size_t>(item.kind)];
        letters += item.done ? static_cast<char>(letter + ('a' - 'A')) : letter;
    }
    return letters;
}

TEST(Agenda, EachStageListsWhatItStillOwes)
{
    const struct {
        Stage stage;
        std::string_view all;
    } cases[] = {
        {Stage::prospect, "LAMDPWR"},
        {Stage::loi, "LAMDPWR"},
        {Stage::drafting, "AMDPWR"},
        {Stage::submitted, "MDPWR"},
        {Stage::awarded, "MPWR"},
        {Stage::declined, ""},
        {Stage::withdrawn, ""},
    };
    for (const auto& [stage, all] : cases)
        EXPECT_EQ(kinds(agenda(file_of({example_grant(stage)}))), all) << static_cast<int>(stage);
}

TEST(Agenda, WhatWasDoneStaysOnRecordInEveryStage)
{
    Grant grant = example_grant(Stage::declined);
    grant.loiSubmittedOn = grant.submittedOn = grant.decidedOn = Day{2025, 3, 4};
    grant.reports[0].status = ReportStatus::submitted;
    grant.payments[0].receivedOn = Day{2025, 5, 2};
    grant.milestones[0].done = true;
    EXPECT_EQ(kinds(agenda(file_of({grant}))), "lamdpwr");
    EXPECT_TRUE(open_agenda(file_of({grant})).empty());
}

TEST(Agenda, AStartedReportNeedsNoDraftAndASentApplicationNoLetter)
{
    Grant grant = example_grant(Stage::awarded);
    grant.reports[0].status = ReportStatus::drafting;
    EXPECT_EQ(kinds(agenda(file_of({grant}))), "MPwR");
    Grant sent = example_grant(Stage::prospect);
    sent.submittedOn = Day{2025, 1, 20};
    EXPECT_EQ(kinds(open_agenda(file_of({sent}))), "MDPWR");
    sent.milestones[0].rule = OffsetFrom{1, DateAnchor::awardEnd};
    EXPECT_EQ(kinds(open_agenda(file_of({sent}))), "DPWR") << "an undated milestone is not listed";
}

TEST(Agenda, AnItemTellsWhatAReaderNeeds)
{
    Grant grant = example_grant(Stage::awarded);
    grant.funderID = id_of(9);
    GrantFile file = file_of({grant});
    file.funders = {Funder{id_of(9), "Marlowe & Finch", {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}},
        Funder{id_of(9), "Another of that id", {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}}};
    const auto items = agenda(file);
    ASSERT_EQ(kinds(items), "MPWR");
    const AgendaItem& payment = items[1];
    EXPECT_EQ(payment.id, "payment-00000000-0000-0000-0000-000000000001-00000000-0000-0000-0000-000000000003");
    EXPECT_EQ(payment.itemID, id_of(3));
    EXPECT_EQ(payment.detail, "First half");
    EXPECT_EQ(payment.amount, Money{250000});
    EXPECT_EQ(payment.funderName, "Marlowe & Finch");
    EXPECT_EQ(items[0].detail, "Site visit");
    EXPECT_EQ(items[2].day, (Day{2025, 6, 20}));
    EXPECT_EQ(items[3].amount, std::nullopt);

    const auto open = agenda(file_of({example_grant(Stage::drafting)}));
    EXPECT_EQ(open[0].id, "application-00000000-0000-0000-0000-000000000001");
    EXPECT_EQ(open[0].itemID, std::nullopt);
    EXPECT_EQ(open[0].amount, Money{500000});
    EXPECT_EQ(open[0].funderName, "");
}

TEST(Agenda, OneDayIsOrderedByKindThenTitleThenId)
{
    std::vector<Grant> grants;
    for (const auto& [title, number] : {std::pair{"B", 1}, {"a", 5}, {"A", 4}, {"A", 3}}) {
        Grant grant;
        grant.id = id_of(static_cast<std::uint8_t>(number));
        grant.title = title;
        grant.applicationDue = grant.loiDue = grant.decisionExpected = Day{2025, 4, 1};
        grants.push_back(grant);
    }
    Grant busy = example_grant(Stage::awarded);
    busy.reports[0].due = busy.payments[0].expected = Day{2025, 4, 1};
    busy.reports[0].draftLeadDays = 0;
    busy.milestones[0].rule = OnDay{{2025, 4, 1}};
    grants.push_back(busy);
    Grant earlier;
    earlier.title = "Z";
    earlier.decisionExpected = Day{-5, 12, 31};
    grants.push_back(earlier);

    const auto items = agenda(file_of(grants));
    EXPECT_EQ(kinds(items), "DAAAALLLLRMWPDDDD");
    std::vector<int> applications;
    for (std::size_t i = 1; i < 5; ++i)
        applications.push_back(items[i].grantID.bytes[15]);
    EXPECT_THAT(applications, ElementsAre(3, 4, 1, 5));
    EXPECT_TRUE(std::is_sorted(items.begin(), items.end(), comes_before));
}

TEST(Agenda, BucketsChangeAfterTheirLastDay)
{
    const Day today{2026, 9, 10};
    const struct {
        std::int64_t days;
        Bucket bucket;
    } cases[] = {
        {-1, Bucket::overdue},
        {0, Bucket::thisWeek},
        {7, Bucket::thisWeek},
        {8, Bucket::next30},
        {30, Bucket::next30},
        {31, Bucket::next90},
        {90, Bucket::next90},
        {91, Bucket::later},
    };
    for (const auto& [days, expected] : cases)
        EXPECT_EQ(bucket(today.plus_days(days), today), expected) << days;
}

} // namespace
} // namespace quillfern::grants
