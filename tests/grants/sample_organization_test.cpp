#include "grants/sample_organization.h"

#include "grants/agenda.h"
#include "grants/funder_history.h"
#include "grants/grant_file_json.h"
#include "grants/labels.h"
#include "grants/report_scheduler.h"
#include "grants/summaries.h"

#include <array>
#include <cstdlib>
#include <gmock/gmock.h>
#include <set>

namespace quillfern::grants {
namespace {

using testing::ElementsAre;

const Day story_day = {2026, 9, 10};

std::array<int, 5> bucket_counts(const GrantFile& file, const Day& today)
{
    std::array<int, 5> counts{};
    for (const AgendaItem& item : open_agenda(file))
        ++counts[static_cast<std::size_t>(bucket(item.day, today))];
    return counts;
}

TEST(SampleOrganization, TheBucketsAreTheSameOnEveryDay)
{
    for (const Day& today : {story_day, Day{2026, 11, 21}, Day{2028, 2, 29}, Day{2027, 1, 31}, Day{2031, 3, 1}}) {
        const GrantFile file = sample_content(today, Lang::en).file;
        EXPECT_THAT(bucket_counts(file, today), ElementsAre(3, 5, 4, 13, 20)) << today.text();
        const auto year = Pipeline::fiscalYear(today, fiscal_calendar(file.org));
        const auto summary = Pipeline::summary(Pipeline::grants(file, year));
        EXPECT_EQ(summary.openCount, 8) << today.text();
        EXPECT_EQ(summary.winRate, 75) << today.text();
    }
}

TEST(SampleOrganization, TheFiguresOfSeptember10Agree)
{
    const GrantFile file = sample_content(story_day, Lang::en).file;
    EXPECT_EQ(file.org.fiscalYearStartMonth, 7);
    EXPECT_EQ(file.grants.size(), 17U);
    const auto year = Pipeline::grants(file, 2027);
    EXPECT_EQ(year.size(), 13U);
    const auto summary = Pipeline::summary(year);
    const auto units = Money::from_units;
    EXPECT_EQ(summary.openAsk, units(427'500));
    EXPECT_EQ(summary.openWeighted, units(138'625));
    EXPECT_EQ(summary.awarded, units(105'000));
    EXPECT_EQ(summary.stages[0].weighted, units(6'500));
    EXPECT_EQ(summary.stages[1].weighted, units(42'000));
    EXPECT_EQ(summary.stages[2].weighted, units(53'875));
    EXPECT_EQ(summary.stages[3].weighted, units(36'250));
    EXPECT_EQ(summary.stages[4].ask, units(112'000));
    EXPECT_EQ(Payments::received(file, 2027), units(39'500));
    PaymentSummary all;
    for (const Grant& grant : file.grants) {
        const auto payments = Payments::summary(grant, story_day);
        all.outstanding += payments.outstanding;
        all.overdue += payments.overdue;
    }
    EXPECT_EQ(all.outstanding, units(121'500));
    EXPECT_EQ(all.overdue, units(16'000));
    EXPECT_EQ(Payments::summary(file.grants[0], story_day),
        (PaymentSummary{units(64'000), units(31'500), units(32'000), units(16'000), units(500), {}}));
    EXPECT_EQ(file.calendarAdded->size(), 6U);
}

TEST(SampleOrganization, TheOrderOfTheYearIsTheStorys)
{
    std::vector<std::string> titles;
    for (const Grant& grant : Pipeline::grants(sample_content(story_day, Lang::en).file, 2027))
        titles.push_back(grant.title);
    EXPECT_THAT(titles,
        ElementsAre("Mobile Pantry Operations", "Volunteer Coordinator", "Emergency Food Purchases",
            "Kitchen Training Program", "Walk-in Freezer Replacement", "Weekend Backpacks 2026–27",
            "Youth Cooking Club", "Community Garden, Phase II", "Mobile Pantry Route Expansion",
            "Nutrition Classes at the Pantry", "Senior Box Delivery", "Refrigerated Van", "General Operating 2027"));
    std::vector<std::pair<std::string, std::string>> awarded;
    for (const FunderHistory& history : funder_histories(sample_content(story_day, Lang::en).file, story_day))
        awarded.emplace_back(history.funder->name, history.awarded.text());
    EXPECT_THAT(awarded,
        ElementsAre(std::pair{"Holloway Credit Union", "18000.00"},
            std::pair{"Kestrel County Community Foundation", "22000.00"},
            std::pair{"Kestrel County Department of Health", "64000.00"},
            std::pair{"Marlowe & Finch Grocers", "48500.00"}, std::pair{"Ostrander Family Foundation", "0.00"},
            std::pair{"Saint Brannoc Mission Fund", "12000.00"}, std::pair{"State Office of Food Access", "0.00"},
            std::pair{"Tessaly Health Trust", "75000.00"}, std::pair{"The Pemberwick Fund", "0.00"}));
}

TEST(SampleOrganization, EveryFileHasItsRecordAndEveryIdIsItsOwn)
{
    for (const Lang lang : {Lang::en, Lang::es}) {
        const SampleContent content = sample_content(story_day, lang);
        std::set<Uuid> ids;
        std::size_t records = 0;
        const auto seen = [&](const Uuid& id) { (ids.insert(id), ++records); };
        std::size_t files = 0;
        for (const Grant& grant : content.file.grants) {
            seen(grant.id);
            for (const auto& report : grant.reports)
                seen(report.id);
            for (const auto& payment : grant.payments)
                seen(payment.id);
            for (const auto& milestone : grant.milestones)
                seen(milestone.id);
            for (const Attachment& attachment : grant.attachments) {
                seen(attachment.id);
                ++files;
                ASSERT_TRUE(content.attachments.contains(attachment.storedName)) << attachment.originalName;
                EXPECT_EQ(std::ssize(content.attachments.at(attachment.storedName)), attachment.byteCount);
            }
            EXPECT_EQ(regenerate_reports(grant, content.file.settings, lang).reports.size(), grant.reports.size());
        }
        for (const Funder& funder : content.file.funders)
            seen(funder.id);
        for (const Person& person : content.file.people)
            seen(person.id);
        EXPECT_EQ(ids.size(), records);
        EXPECT_EQ(files, content.attachments.size());
        EXPECT_TRUE(content.logo.starts_with("\x89PNG\r\n"));
    }
}

TEST(SampleOrganization, SpanishIsATranslationOfTheSameStory)
{
    const GrantFile english = sample_content(story_day, Lang::en).file;
    const GrantFile spanish = sample_content(story_day, Lang::es).file;
    EXPECT_EQ(bucket_counts(spanish, story_day), bucket_counts(english, story_day));
    for (std::size_t i = 0; i < english.grants.size(); ++i) {
        EXPECT_NE(english.grants[i]->title, spanish.grants[i]->title);
        EXPECT_NE(english.grants[i]->notes, spanish.grants[i]->notes);
        EXPECT_EQ(english.grants[i]->payments.size(), spanish.grants[i]->payments.size());
    }
    EXPECT_EQ(english.funders[4]->cycle, "Letter of inquiry by September 17; full application by invitation");
    EXPECT_EQ(
        spanish.funders[4]->cycle, "Carta de consulta hasta el 17 de septiembre; solicitud completa por invitación");
    EXPECT_EQ(source_sentence(english.funders[4]->source, Lang::en),
        "IRS Form 990-PF, tax year 2024, as filed; verify with the funder.");
}

TEST(SampleOrganization, CanBeWrittenAndReadOnTheEdgesOfTime)
{
    for (const Day& today : {story_day, first_day_of_files, last_day_of_files}) {
        const GrantFile file = sample_content(today, Lang::es).file;
        const auto read = read_grant_file(write_grant_file(file), {[] { return Uuid(); }, {}});
        ASSERT_TRUE(read) << today.text();
        EXPECT_TRUE(read->file == file) << today.text();
    }
}

} // namespace
} // namespace quillfern::grants
