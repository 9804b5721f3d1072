#include "app/pages/all_grants_presentation.h"
#include "app/pages/award_money.h"
#include "app/pages/funders_presentation.h"
#include "app/pages/pipeline_presentation.h"
#include "app/window/fiscal_year_choice.h"
#include "grants/sample_organization.h"

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

using grants::Day;
using grants::Grant;
using grants::GrantFile;
using grants::Money;
using grants::Stage;
using testing::ElementsAre;
using testing::IsEmpty;

const Day today{2026, 9, 10};

const GrantFile& sample()
{
    static const GrantFile file = grants::sample_content(today, Lang::en).file;
    return file;
}

Uuid id_of(std::uint8_t number)
{
    Uuid id;
    id.bytes[15] = number;
    return id;
}

GrantFile file_with(std::vector<Grant> grants)
{
    GrantFile file;
    std::uint8_t number = 0;
    for (Grant& grant : grants) {
        grant.id = id_of(++number);
        file.grants.emplace_back(std::move(grant));
    }
    return file;
}

std::vector<std::string> titles(const AllGrantsPresentation& page)
{
    std::vector<std::string> all;
    for (const GrantRow& row : page.rows)
        all.push_back(row.title);
    return all;
}

std::string tile_text(const TileWords& tile)
{
    return tile.label + '|' + tile.figure + '|' + tile.note;
}

std::vector<std::string> tile_texts(const std::vector<TileWords>& tiles)
{
    std::vector<std::string> all;
    for (const TileWords& tile : tiles)
        all.push_back(tile_text(tile));
    return all;
}

TEST(PipelinePresentation, AddsUpTheSamplesYear)
{
    const auto page = pipeline_presentation(sample(), today, 2027, {});
    EXPECT_EQ(page.facts, "FY2027 · July 1, 2026 to June 30, 2027 · 13 grants");
    EXPECT_THAT(tile_texts(page.tiles),
        ElementsAre("Open requests|$427,500|8 grants asked for",
            "Weighted by chance|$138,625|Open requests × their chance", "Awarded|$105,000|3 grants",
            "Win rate|75%|3 of 4 decided"));
    std::vector<std::string> bars;
    for (const StageBar& bar : page.bars)
        bars.push_back(bar.label + ' ' + bar.count + ' ' + bar.asked + ' ' + bar.weighted + ' ' + bar.awarded);
    EXPECT_THAT(bars,
        ElementsAre("Prospect 2 $65,000 $6,500 –", "Letter of Inquiry 2 $180,000 $42,000 –",
            "Drafting 2 $117,500 $53,875 –", "Submitted 2 $65,000 $36,250 –", "Awarded 3 $112,000 $112,000 $105,000",
            "Declined 1 $45,000 – –", "Withdrawn 1 $8,000 – –"));
    EXPECT_EQ(page.rows.size(), 8u);
    EXPECT_EQ(page.rows[0].spoken,
        "Walk-in Freezer Replacement, Marlowe & Finch Grocers, Submitted, chance 50%, asked $40,000, weighted $20,000, "
        "decision Sep 8, 2026, overdue");
    EXPECT_EQ(page.rows[2].decision.text, "Not set");
}

TEST(PipelinePresentation, BarsStayWithinTheScaleWhateverTheAmounts)
{
    Grant asks_nothing;
    asks_nothing.applicationDue = today;
    Grant repays = asks_nothing;
    repays.stage = Stage::drafting;
    repays.ask = Money::from_units(-500);
    Grant more_than_asked = asks_nothing;
    more_than_asked.stage = Stage::awarded;
    more_than_asked.ask = Money::from_units(100);
    more_than_asked.awarded = Money::from_units(400);
    for (const GrantFile& file : {file_with({asks_nothing, repays}), file_with({repays, more_than_asked}), GrantFile{}})
        for (const StageBar& bar : pipeline_presentation(file, today, 2026, {}).bars) {
            EXPECT_GE(bar.solid, 0);
            EXPECT_LE(bar.solid, bar.length) << bar.label;
            EXPECT_LE(bar.length, 1) << bar.label;
        }
}

TEST(PipelinePresentation, SaysWhatIsNotThere)
{
    Grant idea;
    const auto page = pipeline_presentation(file_with({idea}), today, 2026, {});
    EXPECT_EQ(page.facts, "FY2026 · January 1, 2026 to December 31, 2026 · 0 grants, 1 without a date left out");
    EXPECT_EQ(tile_text(page.tiles[3]), "Win rate|–|Nothing decided yet");
    EXPECT_EQ(page.noRows, "No open requests in FY2026");
    EXPECT_FALSE(page.noGrants);
    EXPECT_TRUE(pipeline_presentation({}, today, 2026, {}).noGrants);
}

TEST(AllGrants, ListTheYearByKeyDayWithTotals)
{
    const auto page = all_grants_presentation(sample(), today, {2027, {}, ""});
    EXPECT_EQ(page.facts + "|" + page.order, "FY2027 · 13 grants|ordered by key date");
    EXPECT_EQ(page.rows[0].spoken,
        "Mobile Pantry Operations, Tessaly Health Trust, Awarded, asked $80,000, Sep 11, 2026, Milestone");
    EXPECT_EQ(page.rows[3].next.date.text, "Nothing due");
    EXPECT_TRUE(page.rows[4].next.overdue);
    EXPECT_EQ(page.count + '|' + page.asked + '|' + page.awarded, "13 grants|$592,500|$105,000");
    EXPECT_EQ(all_grants_presentation(sample(), today, {2026, {}, ""}).count, "4 grants");
}

TEST(AllGrants, AreFoundByTitleOrFunderWhateverTheCaseAndAccents)
{
    const auto found = [](std::string_view search, std::optional<Stage> stage = {}) {
        return titles(all_grants_presentation(sample(), today, {2027, stage, search}));
    };
    EXPECT_THAT(found("  VAN "), ElementsAre("Refrigerated Van"));
    EXPECT_THAT(
        found("pemberwíck"), ElementsAre("Youth Cooking Club", "Community Garden, Phase II", "General Operating 2027"));
    EXPECT_THAT(
        found("pemberwick", Stage::prospect), ElementsAre("Community Garden, Phase II", "General Operating 2027"));
    EXPECT_EQ(found("   ").size(), 13u);
    EXPECT_EQ(all_grants_presentation(sample(), today, {2027, {}, "van"}).facts, "FY2027 · 1 of 13 grants");
}

TEST(AllGrants, SayWhyNothingIsListed)
{
    struct Case {
        GrantsFilter filter;
        EmptyWords expected;
    };
    const Case cases[] = {
        {{2027, {}, "bakery"}, {"No grants match “bakery”", "Check the spelling, or clear the search."}},
        {{2027, {}, "2025–26"}, {"No grants match “2025–26”", "1 grant matches in other fiscal years."}},
        {{2027, Stage::declined, "van"}, {"No grants match “van”", "1 grant matches in other stages or fiscal years."}},
        {{2031, {}, ""}, {"No grants in FY2031", "Choose another fiscal year in the tool bar."}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(all_grants_presentation(sample(), today, c.filter).empty, c.expected) << c.filter.search;
    EXPECT_EQ(all_grants_presentation({}, today, {2027, {}, "van"}).empty.heading, "No grants yet");
}

TEST(AllGrants, KeepAGrantWithoutADateInSightInEveryYear)
{
    Grant idea;
    idea.title = "An idea";
    Grant dated;
    dated.title = "Dated";
    dated.applicationDue = today;
    const GrantFile file = file_with({dated, idea});
    const auto page = all_grants_presentation(file, today, {2026, {}, ""});
    EXPECT_THAT(titles(page), ElementsAre("An idea", "Dated"));
    EXPECT_EQ(page.facts, "FY2026 · 2 grants, 1 without a date");
    EXPECT_EQ(page.rows[0].asked.text, "–");
    EXPECT_THAT(titles(all_grants_presentation(file, today, {2031, {}, ""})), ElementsAre("An idea"));
}

TEST(FundersPresentation, ShowsTheChosenFundersRecord)
{
    const auto list = funders_presentation(sample(), today, {});
    EXPECT_EQ(list.facts, "9 funders");
    EXPECT_EQ(list.record->name, list.lines[0].name);
    const FunderLine& ostrander = list.lines.at(4);
    EXPECT_EQ(ostrander.spoken, "Ostrander Family Foundation, Private foundation · 2 grants, no award yet");

    const FunderRecord record = *funders_presentation(sample(), today, ostrander.id).record;
    EXPECT_EQ(record.line, "Private foundation · EIN 00-7714302");
    EXPECT_THAT(tile_texts(record.tiles),
        ElementsAre("Asked|$105,000|2 grants", "Awarded|$0|0 awarded, 1 declined", "Last award|None yet|",
            "Next deadline|Sep 17|LOI due"));
    EXPECT_EQ(record.giving.back().text, "IRS Form 990-PF, tax year 2024, as filed; verify with the funder.");
    EXPECT_EQ(record.grants.at(0).title, "Senior Box Delivery");
}

TEST(FundersPresentation, LeavesOutLinesWithoutAText)
{
    GrantFile file;
    grants::Funder funder;
    funder.name = "A fund";
    funder.contactPhone = " ";
    file.funders.emplace_back(funder);
    const FunderRecord record = *funders_presentation(file, today, id_of(9)).record;
    EXPECT_THAT(record.contact, IsEmpty());
    EXPECT_THAT(record.giving, IsEmpty());
    EXPECT_EQ(record.line, "Other");
    EXPECT_FALSE(funders_presentation({}, today, {}).record);
}

TEST(AwardMoney, CountsWhatIsOverdueInThePresentYearAndWhatIsToComeUntilItsEnd)
{
    const AwardMoney money = award_money(sample(), today, 2027);
    EXPECT_EQ(money.title, "Award money, FY2027");
    EXPECT_EQ(money.receivedText + ' ' + money.overdueText + ' ' + money.expectedText, "$39,500 $16,000 $105,500");
    EXPECT_EQ(money.expectedLabel, "Still expected by June 30");

    Grant award;
    award.stage = Stage::awarded;
    const auto expect_on = [&award](const Day& day, std::int64_t units) {
        grants::Payment payment;
        payment.id = id_of(static_cast<std::uint8_t>(50 + award.payments.size()));
        payment.expected = day;
        payment.amount = Money::from_units(units);
        award.payments.push_back(payment);
    };
    expect_on({2025, 12, 31}, 1); // late since last year
    expect_on({2026, 9, 9}, 10);
    expect_on(today, 100);
    expect_on({2026, 12, 31}, 1000);
    expect_on({2027, 1, 1}, 10000);
    const GrantFile file = file_with({award});
    const auto sums = [&file](std::int64_t year) {
        const AwardMoney in_year = award_money(file, today, year);
        return in_year.overdueText + ' ' + in_year.expectedText;
    };
    EXPECT_EQ(sums(2025), "$1 $0");
    EXPECT_EQ(sums(2026), "$11 $1,100");
    EXPECT_EQ(sums(2027), "$0 $10,000");
}

TEST(FiscalYearChoice, KeepsTheYearOnShowAmongTheYearsOfTheFile)
{
    const auto of = [](std::int64_t shown) { return fiscal_year_choice(sample(), today, shown); };
    EXPECT_THAT(of(2026).labels, ElementsAre("FY2027", "FY2026"));
    EXPECT_EQ(of(2026).shown, 1u);
    EXPECT_THAT(of(2030).years, ElementsAre(2030, 2027, 2026));
    EXPECT_EQ(of(2020).shown, 2u);
}

} // namespace
} // namespace quillfern::app
