#include "bench/made_file.h"

#include <cstring>
#include <random>

namespace quillfern::bench {
namespace {

using namespace grants;

constexpr std::size_t grants_of_a_funder = 10;
const Day epoch{2025, 1, 1};

class Maker {
public:
    Uuid uuid()
    {
        Uuid made;
        const std::uint64_t words[2] = {random_(), random_()};
        std::memcpy(made.bytes.data(), words, sizeof words);
        return made;
    }

    std::int64_t number(std::int64_t below)
    {
        return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(below));
    }
    Day day() { return epoch.plus_days(number(730)); }
    Money amount() { return {number(10'000'000)}; }
    bool chance() { return number(2) == 0; }

    std::string words(std::size_t length)
    {
        static constexpr std::string_view vocabulary[] = {
            "pantry ", "freezer ", "niños ", "report ", "site visit ", "budget ", "“draft” ", "co-op "};
        std::string text;
        while (text.size() < length)
            text += vocabulary[number(std::size(vocabulary))];
        return text;
    }

private:
    std::mt19937_64 random_{2026};
};

ReportPeriod report(Maker& make, int index)
{
    ReportPeriod period;
    period.id = make.uuid();
    period.title = "Quarter " + std::to_string(index + 1) + " report";
    period.periodStart = make.day();
    period.periodEnd = period.periodStart->plus_days(90);
    period.due = period.periodEnd->plus_days(30);
    period.generated = true;
    period.status = static_cast<ReportStatus>(make.number(3));
    if (period.status == ReportStatus::submitted)
        period.submittedOn = period.due;
    return period;
}

Payment payment(Maker& make)
{
    Payment made{make.uuid(), make.day(), make.amount(), {}, {}, "by bank transfer"};
    if (make.chance())
        made.receivedOn = made.expected;
    return made;
}

Grant grant(Maker& make, std::size_t index, const Uuid& funder)
{
    Grant made;
    made.id = make.uuid();
    made.title = "Grant " + std::to_string(index) + " " + make.words(20);
    made.funderID = funder;
    made.stage = static_cast<Stage>(make.number(7));
    made.program = "Food access";
    made.owner = "Dana Whitlock";
    made.ask = make.amount();
    made.loiDue = make.day();
    made.applicationDue = make.day();
    made.decisionExpected = make.day();
    made.awardStart = make.day();
    made.awardEnd = made.awardStart->plus_months(12);
    for (int i = 0; i < 4; ++i)
        made.reports.push_back(report(make, i));
    for (int i = 0; i < 3; ++i)
        made.payments.push_back(payment(make));
    made.milestones.push_back({make.uuid(), "Site visit", OnDay{make.day()}, make.chance()});
    made.milestones.push_back({make.uuid(), "Renewal letter", OffsetFrom{-60, DateAnchor::awardEnd}, false});
    made.attachments.push_back({make.uuid(), make.uuid().lower_text() + ".pdf", "Proposal.pdf",
        AttachmentKind::proposal, Instant{1'750'000'000'000}, 120'000});
    made.notes = make.words(300);
    made.created = made.modified = Instant{1'750'000'000'000 + make.number(1'000'000'000)};
    return made;
}

Funder funder(Maker& make, std::size_t index)
{
    Funder made;
    made.id = make.uuid();
    made.name = "Funder " + std::to_string(index);
    made.contactEmail = "grants@example.org";
    made.notes = make.words(100);
    return made;
}

} // namespace

GrantFile made_file(std::size_t grant_count)
{
    Maker make;
    GrantFile file;
    file.org.name = "Linden Ferry Community Pantry";
    for (std::size_t i = 0; i < grant_count; ++i) {
        if (i % grants_of_a_funder == 0)
            file.funders.push_back(funder(make, file.funders.size()));
        file.grants.push_back(grant(make, i, file.funders.back()->id));
    }
    return file;
}

} // namespace quillfern::bench
