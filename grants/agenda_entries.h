#pragma once

#include "grants/agenda.h"

#include <cstddef>

namespace quillfern::grants {

/// One dated thing of a grant before anything is copied for it.
struct AgendaEntry {
    AgendaKind kind = AgendaKind::loi;
    Day day;
    bool done = false;
    std::size_t index = 0; ///< among the grant's reports, payments or milestones; 0 for the grant's own dates
};

/// A declined or withdrawn request owes no report and awaits no money.
constexpr bool is_live(Stage stage)
{
    return stage != Stage::declined && stage != Stage::withdrawn;
}

/// Calls `take(entry)` for each dated thing of the grant, done ones included, in no particular order. A deadline that
/// was never met is dropped once the request has moved past it, so that nothing is asked for that no longer matters.
template <class Take>
void for_each_entry(const Grant& grant, const FileSettings& settings, Take&& take)
{
    const auto own_date = [&](AgendaKind kind, const std::optional<Day>& day, bool done, bool expected) {
        if (day && (done || expected))
            take(AgendaEntry{kind, *day, done, 0});
    };
    const Stage stage = grant.stage;
    const bool submitted = grant.submittedOn.has_value();
    own_date(AgendaKind::loi, grant.loiDue, grant.loiSubmittedOn.has_value(), stage <= Stage::loi && !submitted);
    own_date(AgendaKind::application, grant.applicationDue, submitted, stage <= Stage::drafting);
    own_date(AgendaKind::decision, grant.decisionExpected, grant.decidedOn.has_value(), is_open(stage));

    for (std::size_t i = 0; i < grant.reports.size(); ++i) {
        const ReportPeriod& report = grant.reports[i];
        const bool sent = report.status == ReportStatus::submitted;
        if (!sent && !is_live(stage))
            continue;
        take(AgendaEntry{AgendaKind::report, report.due, sent, i});
        take(AgendaEntry{
            AgendaKind::reportDraft, draft_day(report, settings), report.status != ReportStatus::notStarted, i});
    }
    for (std::size_t i = 0; i < grant.payments.size(); ++i) {
        const Payment& payment = grant.payments[i];
        if (is_received(payment) || is_live(stage))
            take(AgendaEntry{AgendaKind::payment, payment.expected, is_received(payment), i});
    }
    for (std::size_t i = 0; i < grant.milestones.size(); ++i) {
        const Milestone& milestone = grant.milestones[i];
        const auto day = milestone.done || is_live(stage) ? resolve(milestone.rule, grant) : std::nullopt;
        if (day)
            take(AgendaEntry{AgendaKind::milestone, *day, milestone.done, i});
    }
}

} // namespace quillfern::grants
