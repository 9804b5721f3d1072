#include "grants/records.h"

#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

TEST(Records, ADateRuleFollowsItsAnchor)
{
    Grant grant;
    const DateRule after_decision = OffsetFrom{10, DateAnchor::decision};
    EXPECT_EQ(resolve(after_decision, grant), std::nullopt);
    grant.decisionExpected = Day{2025, 1, 25};
    EXPECT_EQ(resolve(after_decision, grant), (Day{2025, 2, 4}));
    grant.decidedOn = Day{2025, 2, 20};
    EXPECT_EQ(resolve(after_decision, grant), (Day{2025, 3, 2}));
    grant.awardEnd = Day{2025, 6, 30};
    EXPECT_EQ(resolve(OffsetFrom{-14, DateAnchor::awardEnd}, grant), (Day{2025, 6, 16}));
    EXPECT_EQ(resolve(OffsetFrom{1, DateAnchor::loiDue}, grant), std::nullopt);
    EXPECT_EQ(resolve(OnDay{{2025, 5, 5}}, grant), (Day{2025, 5, 5}));
    EXPECT_GT(resolve(OffsetFrom{INT64_MAX, DateAnchor::awardEnd}, grant), grant.awardEnd);
}

TEST(Records, ADraftIsDueItsLeadDaysBeforeTheReport)
{
    ReportPeriod report;
    report.due = {2025, 3, 5};
    EXPECT_EQ(draft_day(report, FileSettings{}), (Day{2025, 2, 23}));
    report.draftLeadDays = 0;
    EXPECT_EQ(draft_day(report, FileSettings{}), report.due);
    report.draftLeadDays = INT64_MIN;
    EXPECT_GT(draft_day(report, FileSettings{}), report.due);
}

TEST(Records, AShortPaymentCountsWhatCame)
{
    Payment payment;
    payment.amount = Money{1600};
    EXPECT_FALSE(is_received(payment));
    payment.receivedOn = Day{2025, 1, 1};
    EXPECT_EQ(received_amount(payment), Money{1600});
    payment.receivedAmount = Money{0};
    EXPECT_EQ(received_amount(payment), Money{0});
}

} // namespace
} // namespace quillfern::grants
