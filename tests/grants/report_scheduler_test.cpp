#include "grants/report_scheduler.h"

#include <gmock/gmock.h>

namespace quillfern::grants {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Grant awarded(const Day& start, const Day& end, ReportPlan plan)
{
    Grant grant;
    grant.awardStart = start;
    grant.awardEnd = end;
    grant.reportPlan = plan;
    return grant;
}

/// "title: start to end, due day", a star for the final report.
std::vector<std::string> lines(const std::vector<ReportPeriod>& reports)
{
    std::vector<std::string> lines;
    for (const ReportPeriod& report : reports)
        lines.push_back(report.title + ": " + report.periodStart.value_or(Day{}).text() + " to "
            + report.periodEnd.value_or(Day{}).text() + ", due " + report.due.text() + (report.isFinal ? " *" : ""));
    return lines;
}

TEST(ReportScheduler, PeriodsKeepTheStartsDayClampedToEachMonth)
{
    const Grant grant = awarded({2025, 1, 31}, {2025, 4, 15}, {ReportFrequency::monthly, 10, 45});
    EXPECT_THAT(lines(generate_reports(grant, {}, Lang::en)),
        ElementsAre("Month 1 report: 2025-01-31 to 2025-02-27, due 2025-03-09",
            "Month 2 report: 2025-02-28 to 2025-03-30, due 2025-04-09",
            "Final report: 2025-03-31 to 2025-04-15, due 2025-05-30 *"));
}

TEST(ReportScheduler, TheLastPeriodIsTheFinalReportWhetherWholeOrCutShort)
{
    const struct {
        ReportFrequency frequency;
        Day end;
        Lang lang;
        std::vector<std::string> titles;
    } cases[] = {
        {ReportFrequency::finalOnly, {2027, 1, 31}, Lang::en, {"Final report"}},
        {ReportFrequency::annual, {2027, 1, 31}, Lang::en, {"Year 1 report", "Final report"}},
        {ReportFrequency::annual, {2027, 2, 1}, Lang::es, {"Informe del año 1", "Informe del año 2", "Informe final"}},
        {ReportFrequency::semiannual, {2026, 1, 31}, Lang::en, {"Half-year 1 report", "Final report"}},
        {ReportFrequency::semiannual, {2026, 1, 31}, Lang::es, {"Informe del semestre 1", "Informe final"}},
        {ReportFrequency::quarterly, {2025, 8, 1}, Lang::es,
            {"Informe del trimestre 1", "Informe del trimestre 2", "Informe final"}},
        {ReportFrequency::quarterly, {2025, 2, 1}, Lang::en, {"Final report"}},
        {ReportFrequency::monthly, {2025, 3, 1}, Lang::es, {"Informe del mes 1", "Informe final"}},
    };
    for (const auto& [frequency, end, lang, titles] : cases) {
        const auto reports = generate_reports(awarded({2025, 2, 1}, end, {frequency, 30, 30}), {}, lang);
        std::vector<std::string> found;
        for (const ReportPeriod& report : reports) {
            found.push_back(report.title);
            EXPECT_EQ(report.isFinal, &report == &reports.back());
            EXPECT_TRUE(report.generated);
        }
        EXPECT_EQ(found, titles);
        EXPECT_EQ(reports.back().periodEnd, end);
    }
}

TEST(ReportScheduler, NothingIsGeneratedWithoutAnAwardInOrder)
{
    EXPECT_THAT(generate_reports(Grant{}, {}, Lang::en), IsEmpty());
    EXPECT_THAT(generate_reports(awarded({2025, 2, 2}, {2025, 2, 1}, {}), {}, Lang::en), IsEmpty());
    Grant open_ended;
    open_ended.awardStart = Day{2025, 2, 1};
    EXPECT_THAT(generate_reports(open_ended, {}, Lang::en), IsEmpty());
}

TEST(ReportScheduler, TheFilesPlanStandsInForAMissingOne)
{
    Grant grant = awarded({2025, 2, 1}, {2025, 12, 31}, {});
    grant.reportPlan.reset();
    const FileSettings settings{10, {ReportFrequency::semiannual, 5, 60}};
    EXPECT_THAT(lines(generate_reports(grant, settings, Lang::en)),
        ElementsAre("Half-year 1 report: 2025-02-01 to 2025-07-31, due 2025-08-05",
            "Final report: 2025-08-01 to 2025-12-31, due 2026-03-01 *"));
}

TEST(ReportScheduler, DueDaysStayWithinWhatAFileCanHold)
{
    const auto longest =
        generate_reports(awarded({1, 1, 1}, {9999, 12, 31}, {ReportFrequency::monthly, INT64_MIN, INT64_MAX}), {},
            Lang::en, [] { return Uuid(); });
    EXPECT_EQ(longest.size(), 9999U * 12);
    EXPECT_EQ(longest.front().due, (Day{1, 1, 1}));
    EXPECT_EQ(longest.back().due, (Day{9999, 12, 31}));
}

TEST(ReportScheduler, RegeneratingTwiceReplacesOnlyWhatNobodyTouched)
{
    Grant grant = awarded({2026, 2, 1}, {2027, 1, 31}, {ReportFrequency::quarterly, 30, 30});
    auto first = regenerate_reports(grant, {}, Lang::en);
    EXPECT_EQ(first.outcome, (Outcome{4, 0, 0}));
    first.reports[0].status = ReportStatus::submitted;
    first.reports[1].status = ReportStatus::drafting;
    grant.reports = first.reports;
    const auto second = regenerate_reports(grant, {}, Lang::en);
    EXPECT_EQ(second.outcome, (Outcome{2, 2, 2}));
    EXPECT_EQ(lines(second.reports), lines(first.reports));
    EXPECT_EQ(second.reports[1], first.reports[1]);
    EXPECT_NE(second.reports[2].id, first.reports[2].id);
}

TEST(ReportScheduler, AChangedPlanDoesNotAskAgainForWhatWasStarted)
{
    Grant grant = awarded({2026, 2, 1}, {2027, 1, 31}, {ReportFrequency::quarterly, 30, 30});
    grant.reports = generate_reports(grant, {}, Lang::en);
    grant.reports[1].status = ReportStatus::submitted; // ends on 2026-07-31
    ReportPeriod own;
    own.title = "Mileage statement";
    own.due = Day{2027, 3, 17}; // the day the new final report would be due
    grant.reports.push_back(own);
    grant.reportPlan = ReportPlan{ReportFrequency::semiannual, 15, 45};
    const auto changed = regenerate_reports(grant, {}, Lang::en);
    EXPECT_EQ(changed.outcome, (Outcome{0, 2, 3}));
    EXPECT_THAT(lines(changed.reports),
        ElementsAre("Quarter 2 report: 2026-05-01 to 2026-07-31, due 2026-08-30",
            "Mileage statement: 1970-01-01 to 1970-01-01, due 2027-03-17"));

    grant.awardEnd.reset();
    EXPECT_EQ(regenerate_reports(grant, {}, Lang::en).outcome, (Outcome{0, 2, 3}));
}

TEST(ReportScheduler, AnOwnReportForTheSamePeriodDoesNotStandInForTheGeneratedOne)
{
    Grant grant = awarded({2026, 2, 1}, {2026, 7, 31}, {});
    ReportPeriod own;
    own.periodEnd = grant.awardEnd;
    own.due = Day{2026, 9, 15};
    grant.reports = {own};
    const auto result = regenerate_reports(grant, {}, Lang::es);
    EXPECT_EQ(result.outcome, (Outcome{1, 1, 0}));
    EXPECT_EQ(result.reports[0].title, "Informe final") << "sorted by due day";
}

} // namespace
} // namespace quillfern::grants
