#include "grants/report_scheduler.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace quillfern::grants {
namespace {

/// Absent for a plan without interim reports.
std::optional<std::int64_t> months_between_reports(ReportFrequency frequency)
{
    switch (frequency) {
    case ReportFrequency::annual:
        return 12;
    case ReportFrequency::semiannual:
        return 6;
    case ReportFrequency::quarterly:
        return 3;
    case ReportFrequency::monthly:
        return 1;
    case ReportFrequency::finalOnly:
        break;
    }
    return std::nullopt;
}

constexpr Text final_title = {"Final report", "Informe final"};

/// English puts the number inside the title, Spanish at its end.
std::string interim_title(ReportFrequency frequency, std::size_t number, Lang lang)
{
    constexpr std::array<Text, 5> starts = {
        final_title,
        Text{"Year ", "Informe del año "},
        Text{"Half-year ", "Informe del semestre "},
        Text{"Quarter ", "Informe del trimestre "},
        Text{"Month ", "Informe del mes "},
    };
    std::string title(starts[static_cast<std::size_t>(frequency)](lang));
    title += std::to_string(number);
    return lang == Lang::en ? title + " report" : title;
}

ReportPeriod period(const Day& start, const Day& end, const FreshId& fresh_id)
{
    ReportPeriod made;
    made.id = fresh_id();
    made.periodStart = start;
    made.periodEnd = end;
    made.generated = true;
    return made;
}

bool is_kept(const ReportPeriod& report)
{
    return !report.generated || report.status != ReportStatus::notStarted;
}

/// The days that newly generated periods must not claim again.
struct TakenDays {
    std::unordered_set<Day> due;
    std::unordered_set<Day> generated_ends;

    explicit TakenDays(const std::vector<ReportPeriod>& kept)
    {
        for (const ReportPeriod& report : kept) {
            due.insert(report.due);
            if (report.generated && report.periodEnd)
                generated_ends.insert(*report.periodEnd);
        }
    }

    bool claims(const ReportPeriod& made) const
    {
        return due.contains(made.due) || generated_ends.contains(*made.periodEnd);
    }
};

} // namespace

const ReportPlan& report_plan(const Grant& grant, const FileSettings& settings)
{
    return grant.reportPlan ? *grant.reportPlan : settings.defaultReportPlan;
}

std::vector<ReportPeriod> generate_reports(
    const Grant& grant, const FileSettings& settings, Lang lang, const FreshId& fresh_id)
{
    if (!grant.awardStart || !grant.awardEnd || *grant.awardEnd < *grant.awardStart)
        return {};
    const ReportPlan& plan = report_plan(grant, settings);
    const auto months = months_between_reports(plan.frequency);
    std::vector<ReportPeriod> reports;
    Day start = *grant.awardStart;
    for (std::int64_t k = 1; months; ++k) {
        const Day next = grant.awardStart->plus_months(k * *months);
        if (next > *grant.awardEnd)
            break;
        ReportPeriod& interim = reports.emplace_back(period(start, next.plus_days(-1), fresh_id));
        interim.title = interim_title(plan.frequency, reports.size(), lang);
        interim.due = within_files(interim.periodEnd->plus_days(plan.dueDays));
        start = next;
    }
    ReportPeriod& last = reports.emplace_back(period(start, *grant.awardEnd, fresh_id));
    last.title = final_title(lang);
    last.due = within_files(grant.awardEnd->plus_days(plan.finalDueDays));
    last.isFinal = true;
    return reports;
}

Regeneration regenerate_reports(const Grant& grant, const FileSettings& settings, Lang lang, const FreshId& fresh_id)
{
    Regeneration result;
    auto& [reports, outcome] = result;
    std::copy_if(grant.reports.begin(), grant.reports.end(), std::back_inserter(reports), is_kept);
    outcome.kept = std::ssize(reports);
    outcome.removed = std::ssize(grant.reports) - outcome.kept;
    const TakenDays taken(reports);
    for (ReportPeriod& made : generate_reports(grant, settings, lang, fresh_id))
        if (!taken.claims(made))
            reports.push_back(std::move(made));
    outcome.added = std::ssize(reports) - outcome.kept;
    std::stable_sort(
        reports.begin(), reports.end(), [](const ReportPeriod& a, const ReportPeriod& b) { return a.due < b.due; });
    return result;
}

} // namespace quillfern::grants
