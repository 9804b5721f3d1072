#include "bench/made_file.h"
#include "bench/paired.h"
#include "bench/sqlite_file.h"
#include "grants/funder_history.h"
#include "grants/summaries.h"

#include <iterator>

/// All summaries of a file against the same figures from an indexed in-memory SQLite with normalised tables.
namespace quillfern::bench {
namespace {

using namespace grants;

const Day today{2026, 1, 15};

struct Figures {
    std::vector<StageTotal> stages;
    std::vector<PaymentSummary> payments; ///< by grant id
    std::vector<std::int64_t> fiscal_years;
    std::vector<Uuid> by_key_day;
    Money received;
    std::vector<FunderHistory> histories;
};

Figures figures(const GrantFile& file)
{
    Figures all;
    const std::int64_t year = Pipeline::fiscalYear(today, fiscal_calendar(file.org));
    all.fiscal_years = Pipeline::fiscalYears(file, today);
    const auto ordered = Pipeline::grants(file);
    all.stages = Pipeline::summary(ordered).stages;
    for (const Grant& grant : ordered)
        all.by_key_day.push_back(grant.id);
    for (const Grant& grant : file.grants)
        all.payments.push_back(Payments::summary(grant, today));
    all.received = Payments::received(file, year);
    all.histories = funder_histories(file, today);
    return all;
}

/// A request's weight and award value beside its columns; a view, so that each query states only what it sums.
constexpr const char* views = R"(
    CREATE VIEW valued AS SELECT *,
        CASE WHEN stage = 4 THEN 100 WHEN stage > 4 THEN 0 WHEN probability IS NOT NULL
             THEN min(max(probability, 0), 100) ELSE CASE stage WHEN 0 THEN 10 WHEN 1 THEN 20 WHEN 2 THEN 35 ELSE 50 END
             END AS chance,
        CASE WHEN stage = 4 THEN coalesce(awarded, ask, 0) ELSE 0 END AS value,
        CASE WHEN stage > 4 THEN coalesce(decided, decision, application, loi)
             WHEN stage = 4 THEN coalesce(decided, award_start, decision, application)
             ELSE coalesce(decision, application, loi) END AS key_day
        FROM request;
)";

class Peer {
public:
    explicit Peer(const GrantFile& file) : db_((std::string(file_schema) + views).c_str())
    {
        fill(db_, file);
        histories_.bind(1, today.days_since_epoch());
        payments_.bind(1, today.days_since_epoch());
        const DayRange year = fiscal_calendar(file.org).range(today.year);
        received_.bind(1, year.first.days_since_epoch());
        received_.bind(2, year.last.days_since_epoch());
    }

    Figures figures()
    {
        Figures all;
        read(stages_, [&] {
            all.stages.push_back({static_cast<Stage>(stages_.integer(0)), stages_.integer(1), {stages_.integer(2)},
                {stages_.integer(3)}, {stages_.integer(4)}});
        });
        read(payments_, [&] {
            const auto cents = [&](int column) { return Money{payments_.integer(column)}; };
            all.payments.push_back({cents(0), cents(1), cents(2), cents(3), cents(4), cents(5)});
        });
        read(years_, [&] { all.fiscal_years.push_back(years_.integer(0)); });
        read(ordered_, [&] { all.by_key_day.push_back(*Uuid::parse(ordered_.view(0))); });
        read(received_, [&] { all.received = {received_.integer(0)}; });
        read(histories_, [&] { all.histories.push_back(history()); });
        return all;
    }

private:
    template <class F>
    static void read(SqliteRows& rows, F&& row)
    {
        rows.rewind();
        while (rows.next())
            row();
    }

    FunderHistory history() const
    {
        FunderHistory made;
        Funder funder;
        funder.id = *Uuid::parse(histories_.view(0));
        funder.name = histories_.text(1);
        made.funder = std::move(funder);
        made.grantCount = histories_.integer(2);
        made.asked = {histories_.integer(3)};
        made.awarded = {histories_.integer(4)};
        made.awardedCount = histories_.integer(5);
        made.declinedCount = histories_.integer(6);
        if (!histories_.is_null(7))
            made.lastAward = Day::from_days_since_epoch(histories_.integer(7));
        if (!histories_.is_null(8))
            made.nextDeadline = Day::from_days_since_epoch(histories_.integer(8));
        return made;
    }

    SqliteDatabase db_;
    SqliteRows stages_{db_, R"(SELECT stage, count(*), sum(ask), sum((ask * chance + 50) / 100), sum(value)
                               FROM valued GROUP BY stage ORDER BY stage)"};
    SqliteRows payments_{db_, R"(
        SELECT sum(p.amount), sum(CASE WHEN received IS NULL THEN 0 ELSE coalesce(received_amount, amount) END),
               sum(CASE WHEN received IS NULL THEN amount ELSE 0 END),
               sum(CASE WHEN received IS NULL AND expected < ?1 THEN amount ELSE 0 END),
               sum(CASE WHEN received IS NULL THEN 0 ELSE max(amount - coalesce(received_amount, amount), 0) END),
               CASE WHEN g.stage = 4 THEN coalesce(g.awarded, g.ask, 0) ELSE coalesce(g.awarded, 0) END - sum(p.amount)
          FROM request g LEFT JOIN payment p ON p.request = g.id GROUP BY g.id)"};
    SqliteRows years_{db_, R"(SELECT DISTINCT CAST(strftime('%Y', key_day * 86400, 'unixepoch') AS INT) AS year
                              FROM valued WHERE key_day IS NOT NULL ORDER BY year DESC)"};
    SqliteRows ordered_{db_, "SELECT id FROM valued ORDER BY key_day, title"};
    SqliteRows received_{
        db_, "SELECT sum(coalesce(received_amount, amount)) FROM payment WHERE received BETWEEN ?1 AND ?2"};
    SqliteRows histories_{db_,
        (R"(
        SELECT f.id, f.name, count(g.id), sum(g.ask), sum(g.value), sum(g.stage = 4), sum(g.stage = 5),
               max(CASE WHEN g.stage = 4 THEN g.key_day END), min(n.day)
          FROM funder f LEFT JOIN valued g ON g.funder = f.id
          LEFT JOIN (SELECT request, min(day) AS day FROM ()"
            + std::string(agenda_rows) + R"()
                      WHERE NOT done AND day >= ?1 GROUP BY request) n ON n.request = g.id
         GROUP BY f.id ORDER BY f.name COLLATE NOCASE)")
            .c_str()};
};

/// The names of made funders hold numbers, which SQLite sorts in its own way: compared by id.
bool same_histories(std::vector<FunderHistory> a, std::vector<FunderHistory> b)
{
    const auto by_id = [](const FunderHistory& x, const FunderHistory& y) { return x.funder->id < y.funder->id; };
    std::sort(a.begin(), a.end(), by_id);
    std::sort(b.begin(), b.end(), by_id);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const FunderHistory& x, FunderHistory y) {
        y.funder = x.funder;
        return x == y;
    });
}

bool same(const Figures& a, const Figures& b)
{
    const auto sum = [](const std::vector<PaymentSummary>& payments) {
        PaymentSummary all;
        for (const PaymentSummary& one : payments) {
            all.received += one.received;
            all.overdue += one.overdue;
            all.unscheduled += one.unscheduled;
        }
        return all;
    };
    return a.stages == b.stages && sum(a.payments) == sum(b.payments) && a.fiscal_years == b.fiscal_years
        && a.by_key_day == b.by_key_day && a.received == b.received && same_histories(a.histories, b.histories);
}

void all_summaries(benchmark::State& state)
{
    const GrantFile file = made_file(static_cast<std::size_t>(state.range(0)));
    Peer peer(file);
    if (!same(figures(file), peer.figures())) {
        state.SkipWithError("the peer has other figures");
        return;
    }
    run_paired(
        state, [&] { benchmark::DoNotOptimize(figures(file)); }, [&] { benchmark::DoNotOptimize(peer.figures()); });
}

BENCHMARK(all_summaries)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
