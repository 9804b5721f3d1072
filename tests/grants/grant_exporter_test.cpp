#include "grants/grant_exporter.h"

#include "grants/csv_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillfern::grants {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

Funder example_funder()
{
    Funder funder;
    funder.id = *Uuid::parse("00000000-0000-4000-8000-000000000001");
    funder.name = "Juniper Hollow";
    return funder;
}

ReportPeriod report(Day due, ReportStatus status)
{
    ReportPeriod report;
    report.due = due;
    report.status = status;
    return report;
}

Grant example_grant()
{
    Grant grant;
    grant.title = "Cold storage";
    grant.funderID = example_funder().id;
    grant.stage = Stage::loi;
    grant.ask = Money{1250000};
    grant.awarded = Money{-5};
    grant.probability = 60;
    grant.loiDue = Day{2027, 3, 15};
    grant.applicationDue = Day{2027, 4, 1};
    grant.submittedOn = Day{2027, 4, 2};
    grant.decisionExpected = Day{2027, 5, 3};
    grant.decidedOn = Day{2027, 5, 4};
    grant.awardStart = Day{2027, 6, 5};
    grant.awardEnd = Day{2028, 6, 4};
    grant.reports = {report({2028, 7, 1}, ReportStatus::notStarted), report({2027, 9, 1}, ReportStatus::submitted),
        report({2027, 12, 1}, ReportStatus::drafting)};
    grant.program = "Food";
    grant.owner = "Maya";
    grant.notes = "=a, b";
    return grant;
}

TEST(GrantExporter, WritesEveryFieldInItsOwnForm)
{
    GrantFile file;
    file.funders = {example_funder()};
    EXPECT_THAT(GrantExporter::row(example_grant(), file, Lang::es),
        ElementsAre("Cold storage", "Juniper Hollow", "Carta de consulta", "12500.00", "-0.05", "60%", "2027-03-15",
            "2027-04-01", "2027-04-02", "2027-05-03", "2027-05-04", "2027-06-05", "2028-06-04", "2027-12-01", "Food",
            "Maya", "=a, b"));

    Grant bare;
    bare.funderID = *Uuid::parse("00000000-0000-4000-8000-000000000009");
    bare.ask = Money{0};
    bare.awarded = Money{0};
    const CSVRow row = GrantExporter::row(bare, file, Lang::en);
    EXPECT_EQ(row[1], "") << "a funder that the file lacks";
    EXPECT_EQ(row[3], "") << "an ask of zero";
    EXPECT_EQ(row[4], "0.00");
    EXPECT_EQ(row[5], "") << "the stage's usual probability is not the grant's own";
}

TEST(GrantExporter, WritesTheHeadersOfTheLanguageAndARowAGrant)
{
    constexpr std::string_view english = "Grant,Funder,Stage,Ask,Awarded,Probability,LOI due,Application due,Submitted,"
                                         "Decision expected,Decided,Award start,Award end,Next report due,Program,"
                                         "Owner,Notes\r\n";
    GrantFile file;
    EXPECT_EQ(GrantExporter::csv(file, Lang::en), english);
    EXPECT_TRUE(GrantExporter::csv(file, Lang::es)
                    .starts_with("Subvención,Financiador,Etapa,Monto solicitado,Monto otorgado,Probabilidad,"));

    file.funders = {example_funder()};
    file.grants = {example_grant(), Grant()};
    EXPECT_EQ(GrantExporter::csv(file, Lang::en),
        std::string(english)
            + "Cold storage,Juniper Hollow,Letter of Inquiry,12500.00,-0.05,60%,2027-03-15,2027-04-01,2027-04-02,"
              "2027-05-03,2027-05-04,2027-06-05,2028-06-04,2027-12-01,Food,Maya,\"'=a, b\"\r\n"
              ",,Prospect,,,,,,,,,,,,,,\r\n");
}

TEST(GrantExporter, ShowsTwoSamplesInTheTemplateOfEachLanguage)
{
    for (const Lang lang : {Lang::en, Lang::es}) {
        const CSVTable table(GrantExporter::template_(lang));
        ASSERT_THAT(table.headers, SizeIs(GrantExporter::fields.size()));
        ASSERT_THAT(table.rows, SizeIs(2));
        EXPECT_THAT(table.rows, Each(SizeIs(GrantExporter::fields.size())));
        EXPECT_EQ(table.rows[0][2], lang == Lang::en ? "Awarded" : "Otorgada");
        EXPECT_EQ(table.rows[1][5], "60%");
    }
}

} // namespace
} // namespace quillfern::grants
