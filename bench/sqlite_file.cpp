#include "bench/sqlite_file.h"

namespace quillfern::bench {

using namespace grants;

const char* const file_schema = R"(
    CREATE TABLE funder(id TEXT PRIMARY KEY, name TEXT);
    CREATE TABLE request(id TEXT PRIMARY KEY, title TEXT, funder TEXT, stage INT, ask INT, loi INT, loi_done INT,
                         application INT, submitted INT, decision INT, decided INT, award_start INT, award_end INT, awarded INT, probability INT);
    CREATE TABLE report(id TEXT PRIMARY KEY, request TEXT, title TEXT, due INT, draft INT, status INT);
    CREATE TABLE payment(id TEXT PRIMARY KEY, request TEXT, expected INT, amount INT, received INT, received_amount INT, note TEXT);
    CREATE TABLE milestone(id TEXT PRIMARY KEY, request TEXT, title TEXT, day INT, offset INT, done INT);
    CREATE INDEX request_of ON request(funder);
    CREATE INDEX request_stage ON request(stage);
    CREATE INDEX payment_received ON payment(received);
    CREATE INDEX report_of ON report(request);
    CREATE INDEX payment_of ON payment(request);
    CREATE INDEX milestone_of ON milestone(request);
    CREATE INDEX report_due ON report(due);
    CREATE INDEX payment_due ON payment(expected);
)";

/// Stages are numbered in their order: 0 to 3 are open, 5 and 6 declined and withdrawn.
const char* const agenda_rows = R"(
        SELECT 'loi-' || g.id AS id, 0 AS kind, g.loi AS day, g.id AS request, NULL AS item, '' AS detail,
               g.title AS title, f.name AS funder, g.ask AS amount, g.loi_done IS NOT NULL AS done, 1 AS rank
          FROM request g LEFT JOIN funder f ON f.id = g.funder
         WHERE g.loi IS NOT NULL AND (g.loi_done IS NOT NULL OR (g.stage <= 1 AND g.submitted IS NULL))
        UNION ALL
        SELECT 'application-' || g.id, 1, g.application, g.id, NULL, '', g.title, f.name, g.ask,
               g.submitted IS NOT NULL, 0
          FROM request g LEFT JOIN funder f ON f.id = g.funder
         WHERE g.application IS NOT NULL AND (g.submitted IS NOT NULL OR g.stage <= 2)
        UNION ALL
        SELECT 'decision-' || g.id, 2, g.decision, g.id, NULL, '', g.title, f.name, g.ask, g.decided IS NOT NULL, 6
          FROM request g LEFT JOIN funder f ON f.id = g.funder
         WHERE g.decision IS NOT NULL AND (g.decided IS NOT NULL OR g.stage <= 3)
        UNION ALL
        SELECT 'reportDraft-' || g.id || '-' || r.id, 3, r.draft, g.id, r.id, r.title, g.title, f.name, NULL,
               r.status <> 0, 4
          FROM report r JOIN request g ON g.id = r.request LEFT JOIN funder f ON f.id = g.funder
         WHERE r.status = 2 OR g.stage < 5
        UNION ALL
        SELECT 'report-' || g.id || '-' || r.id, 4, r.due, g.id, r.id, r.title, g.title, f.name, NULL, r.status = 2, 2
          FROM report r JOIN request g ON g.id = r.request LEFT JOIN funder f ON f.id = g.funder
         WHERE r.status = 2 OR g.stage < 5
        UNION ALL
        SELECT 'payment-' || g.id || '-' || p.id, 5, p.expected, g.id, p.id, p.note, g.title, f.name, p.amount,
               p.received IS NOT NULL, 5
          FROM payment p JOIN request g ON g.id = p.request LEFT JOIN funder f ON f.id = g.funder
         WHERE p.received IS NOT NULL OR g.stage < 5
        UNION ALL
        SELECT 'milestone-' || g.id || '-' || m.id, 6, coalesce(m.day, g.award_end + m.offset), g.id, m.id, m.title,
               g.title, f.name, NULL, m.done, 3
          FROM milestone m JOIN request g ON g.id = m.request LEFT JOIN funder f ON f.id = g.funder
         WHERE (m.done OR g.stage < 5) AND coalesce(m.day, g.award_end + m.offset) IS NOT NULL
)";

void fill(SqliteDatabase& db, const GrantFile& file)
{
    for (const Funder& funder : file.funders)
        db.insert("funder", {funder.id.lower_text(), funder.name});
    for (const Grant& grant : file.grants) {
        const std::string id = grant.id.lower_text();
        db.insert("request",
            {id, grant.title, grant.funderID->lower_text(), static_cast<std::int64_t>(grant.stage), sql(grant.ask),
                sql(grant.loiDue), sql(grant.loiSubmittedOn), sql(grant.applicationDue), sql(grant.submittedOn),
                sql(grant.decisionExpected), sql(grant.decidedOn), sql(grant.awardStart), sql(grant.awardEnd),
                sql(grant.awarded), grant.probability ? SqlValue(*grant.probability) : SqlValue()});
        for (const ReportPeriod& report : grant.reports)
            db.insert("report",
                {report.id.lower_text(), id, report.title, sql(std::optional(report.due)),
                    sql(std::optional(draft_day(report, file.settings))), static_cast<std::int64_t>(report.status)});
        for (const Payment& payment : grant.payments)
            db.insert("payment",
                {payment.id.lower_text(), id, sql(std::optional(payment.expected)), payment.amount.cents,
                    sql(payment.receivedOn), sql(payment.receivedAmount), payment.note});
        for (const Milestone& milestone : grant.milestones) {
            const OnDay* on = std::get_if<OnDay>(&milestone.rule);
            const OffsetFrom* offset = std::get_if<OffsetFrom>(&milestone.rule);
            db.insert("milestone",
                {milestone.id.lower_text(), id, milestone.title, on ? sql(std::optional(on->day)) : SqlValue(),
                    offset ? SqlValue(offset->days) : SqlValue(), std::int64_t(milestone.done)});
        }
    }
}

} // namespace quillfern::bench
