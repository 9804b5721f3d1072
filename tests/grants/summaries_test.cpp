#include "grants/summaries.h"

#include "grants/funder_history.h"

#include <gmock/gmock.h>

namespace quillfern::grants {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Grant grant_in(Stage stage, std::optional<std::int64_t> ask_cents = {}, std::optional<std::int64_t> probability = {})
{
    Grant grant;
    grant.stage = stage;
    if (ask_cents)
        grant.ask = Money{*ask_cents};
    grant.probability = probability;
    return grant;
}

std::vector<Shared<Grant>> list(std::initializer_list<Grant> grants)
{
    return {grants.begin(), grants.end()};
}

TEST(Pipeline, TheChanceComesFromTheStageOnceDecidedElseFromTheGrant)
{
    const struct {
        Stage stage;
        std::optional<std::int64_t> own;
        std::int64_t effective;
    } cases[] = {
        {Stage::prospect, {}, 10},
        {Stage::loi, {}, 20},
        {Stage::drafting, {}, 35},
        {Stage::submitted, {}, 50},
        {Stage::awarded, 5, 100},
        {Stage::declined, 90, 0},
        {Stage::withdrawn, 90, 0},
        {Stage::drafting, 150, 100},
        {Stage::drafting, -5, 0},
        {Stage::submitted, 0, 0},
        {Stage::prospect, INT64_MAX, 100},
    };
    for (const auto& [stage, own, effective] : cases)
        EXPECT_EQ(effective_probability(grant_in(stage, {}, own)), effective);
}

TEST(Pipeline, EachWeightIsRoundedBeforeItIsAdded)
{
    EXPECT_EQ(weighted_ask(grant_in(Stage::submitted, 100001)), Money{50001});
    EXPECT_EQ(weighted_ask(grant_in(Stage::submitted, -100001)), Money{-50001});
    EXPECT_EQ(weighted_ask(grant_in(Stage::submitted)), Money{0});
    const auto summary = Pipeline::summary(list({grant_in(Stage::submitted, 1), grant_in(Stage::submitted, 1)}));
    EXPECT_EQ(summary.openWeighted, Money{2});
}

TEST(Pipeline, SummaryHasALineForEveryStageAndCountsWhatBelongsToIt)
{
    Grant awarded = grant_in(Stage::awarded, 500);
    Grant declined = grant_in(Stage::declined, 700);
    declined.awarded = Money{600};
    const auto summary =
        Pipeline::summary(list({awarded, declined, grant_in(Stage::prospect, 1000), grant_in(Stage::withdrawn, 40)}));
    ASSERT_EQ(summary.stages.size(), 7U);
    EXPECT_EQ(summary.stages[4], (StageTotal{Stage::awarded, 1, Money{500}, Money{500}, Money{500}}));
    EXPECT_EQ(summary.stages[5], (StageTotal{Stage::declined, 1, Money{700}, Money{0}, Money{0}}));
    EXPECT_EQ(summary.openCount, 1);
    EXPECT_EQ(summary.openAsk, Money{1000});
    EXPECT_EQ(summary.openWeighted, Money{100});
    EXPECT_EQ(summary.awarded, Money{500}) << "the ask stands in for a missing amount";
    EXPECT_EQ(summary.declinedCount, 1);
    EXPECT_EQ(summary.winRate, 50);

    const auto nothing = Pipeline::summary({});
    EXPECT_EQ(nothing.stages[6], (StageTotal{Stage::withdrawn, 0, {}, {}, {}}));
    EXPECT_EQ(nothing.winRate, std::nullopt);
    EXPECT_EQ(Pipeline::summary(list({grant_in(Stage::withdrawn)})).winRate, std::nullopt);
}

TEST(Pipeline, TheWinRateRoundsAsDoubleArithmeticGivesIt)
{
    const struct {
        int awarded;
        int decided;
        std::int64_t rate;
    } cases[] = {{1, 3, 33}, {2, 3, 67}, {1, 8, 13}, {23, 40, 57}, {0, 5, 0}, {5, 5, 100}};
    for (const auto& [awarded, decided, rate] : cases) {
        std::vector<Shared<Grant>> grants(static_cast<std::size_t>(awarded), grant_in(Stage::awarded));
        grants.resize(static_cast<std::size_t>(decided), grant_in(Stage::declined));
        EXPECT_EQ(Pipeline::summary(grants).winRate, rate) << awarded << " of " << decided;
    }
}

TEST(Pipeline, TheKeyDayFallsBackInTheStagesOwnOrder)
{
    Grant grant;
    EXPECT_EQ(key_day(grant), std::nullopt);
    const auto key_years = [&] {
        std::vector<std::int64_t> years;
        for (const Stage stage :
            {Stage::prospect, Stage::submitted, Stage::awarded, Stage::declined, Stage::withdrawn}) {
            grant.stage = stage;
            years.push_back(key_day(grant).value_or(Day{0, 1, 1}).year);
        }
        return years;
    };
    grant.loiDue = Day{2001, 1, 1};
    EXPECT_THAT(key_years(), ElementsAre(2001, 2001, 0, 2001, 2001)) << "an award never goes by its letter";
    grant.applicationDue = Day{2002, 1, 1};
    EXPECT_THAT(key_years(), ElementsAre(2002, 2002, 2002, 2002, 2002));
    grant.decisionExpected = Day{2003, 1, 1};
    EXPECT_THAT(key_years(), ElementsAre(2003, 2003, 2003, 2003, 2003));
    grant.awardStart = Day{2004, 1, 1};
    EXPECT_THAT(key_years(), ElementsAre(2003, 2003, 2004, 2003, 2003));
    grant.decidedOn = Day{2005, 1, 1};
    EXPECT_THAT(key_years(), ElementsAre(2003, 2003, 2005, 2005, 2005));
}

TEST(Pipeline, GrantsAreOrderedByKeyDayThenTitleThenAsInTheFile)
{
    GrantFile file;
    file.org.fiscalYearStartMonth = 7;
    const auto add = [&](const char* title, std::optional<Day> day, Stage stage, const char* owner) {
        Grant grant;
        grant.title = title;
        grant.owner = owner;
        grant.stage = stage;
        grant.decisionExpected = day;
        file.grants.emplace_back(grant);
    };
    add("B", Day{2027, 6, 30}, Stage::awarded, "1");
    add("b", Day{2027, 6, 30}, Stage::prospect, "2");
    add("A", Day{2027, 7, 1}, Stage::awarded, "3");
    add("Z", {}, Stage::prospect, "4");
    add("B", Day{2027, 6, 30}, Stage::awarded, "5");
    add("É", Day{2027, 6, 30}, Stage::prospect, "6");
    const auto owners = [](const std::vector<Shared<Grant>>& grants) {
        std::string all;
        for (const Grant& grant : grants)
            all += grant.owner;
        return all;
    };
    EXPECT_EQ(owners(Pipeline::grants(file)), "415263");
    EXPECT_EQ(owners(Pipeline::grants(file, 2027)), "1526");
    EXPECT_EQ(owners(Pipeline::grants(file, 2028)), "3");
    EXPECT_EQ(owners(Pipeline::awards(file, 2027)), "15");
    EXPECT_THAT(Pipeline::fiscalYears(file, {2024, 7, 1}), ElementsAre(2028, 2027, 2025));
    EXPECT_THAT(Pipeline::fiscalYears(GrantFile{}, {2024, 7, 1}), ElementsAre(2024));
}

Payment payment(const Day& expected, std::int64_t cents, std::optional<Day> received_on = {},
    std::optional<std::int64_t> received_cents = {})
{
    Payment payment;
    payment.expected = expected;
    payment.amount = Money{cents};
    payment.receivedOn = received_on;
    if (received_cents)
        payment.receivedAmount = Money{*received_cents};
    return payment;
}

TEST(Payments, AnOverpaymentNeverMakesUpForAShortOne)
{
    const Day today{2026, 9, 10};
    Grant grant = grant_in(Stage::awarded, 900);
    grant.payments = {payment({2026, 1, 1}, 300, today, 250), payment({2026, 2, 1}, 300, today, 400),
        payment({2026, 3, 1}, 100, today), payment({2026, 9, 9}, 100), payment({2026, 9, 10}, 100),
        payment({2026, 9, 11}, 50, {}, 50)};
    EXPECT_EQ(Payments::summary(grant, today),
        (PaymentSummary{Money{950}, Money{750}, Money{250}, Money{100}, Money{50}, Money{-50}}));
}

TEST(Payments, WhatIsUnscheduledCountsFromTheAwardOrForAnAwardFromTheAsk)
{
    const Day today{2026, 9, 10};
    Grant grant = grant_in(Stage::declined, 900);
    EXPECT_EQ(Payments::summary(grant, today).unscheduled, Money{0});
    grant.awarded = Money{600};
    grant.payments = {payment(today, 100)};
    EXPECT_EQ(Payments::summary(grant, today).unscheduled, Money{500});
}

TEST(Payments, AYearsReceiptsGoByTheDayTheyCame)
{
    GrantFile file;
    file.org.fiscalYearStartMonth = 7;
    Grant grant = grant_in(Stage::withdrawn);
    grant.payments = {payment({2027, 6, 1}, 100, Day{2027, 7, 1}), payment({2028, 1, 1}, 100, Day{2027, 6, 30}, 70),
        payment({2027, 1, 1}, 1000)};
    file.grants = {Shared<Grant>(grant)};
    EXPECT_EQ(Payments::received(file, 2027), Money{70});
    EXPECT_EQ(Payments::received(file, 2028), Money{100});
}

TEST(FunderHistory, GathersAFundersGrantsAndItsNextDate)
{
    const Day today{2026, 9, 10};
    GrantFile file;
    for (const auto& [name, number] : {std::pair{"pemberwick", 1}, {"Élan", 2}, {"Pemberwick", 1}, {"Fern", 3}}) {
        Funder funder;
        funder.name = name;
        funder.id.bytes[15] = static_cast<std::uint8_t>(number);
        file.funders.emplace_back(funder);
    }
    const auto add = [&](Grant grant, const Day& decided) {
        grant.funderID = file.funders[0]->id;
        grant.decidedOn = decided;
        file.grants.emplace_back(grant);
    };
    Grant paid = grant_in(Stage::awarded, 500);
    paid.payments = {payment({2026, 9, 9}, 1), payment({2026, 9, 12}, 1), payment({2026, 9, 10}, 1, today)};
    add(paid, {2026, 3, 1});
    add(grant_in(Stage::awarded, 70), {2025, 3, 1});
    Grant declined = grant_in(Stage::declined, 9);
    declined.applicationDue = Day{2026, 9, 11};
    add(declined, {2026, 5, 1});

    const auto histories = funder_histories(file, today);
    std::vector<std::string> names;
    for (const FunderHistory& history : histories)
        names.push_back(history.funder->name);
    EXPECT_THAT(names, ElementsAre("Élan", "Fern", "pemberwick", "Pemberwick")) << "equal names keep the file's order";
    const FunderHistory& history = histories[2];
    EXPECT_EQ(history.grantCount, 3);
    EXPECT_EQ(history.asked, Money{579});
    EXPECT_EQ(history.awarded, Money{570});
    EXPECT_EQ(history.awardedCount, 2);
    EXPECT_EQ(history.declinedCount, 1);
    EXPECT_EQ(history.lastAward, (Day{2026, 3, 1}));
    EXPECT_EQ(history.nextDeadline, (Day{2026, 9, 12}));
    EXPECT_EQ(histories[3].asked, history.asked) << "two funders with one id share their grants";
    EXPECT_EQ(histories[0], (FunderHistory{file.funders[1], 0, {}, {}, 0, 0, {}, {}}));
}

} // namespace
} // namespace quillfern::grants
