#include "bench/made_file.h"
#include "bench/paired.h"
#include "bench/sqlite_file.h"
#include "grants/agenda.h"

/// The agenda of all items, sorted, against the same rows from an indexed in-memory SQLite with normalised tables.
namespace quillfern::bench {
namespace {

using namespace grants;

AgendaItem item(SqliteRows& rows)
{
    AgendaItem made;
    made.id = rows.text(0);
    made.kind = static_cast<AgendaKind>(rows.integer(1));
    made.day = Day::from_days_since_epoch(rows.integer(2));
    made.grantID = *Uuid::parse(rows.view(3));
    if (!rows.is_null(4))
        made.itemID = Uuid::parse(rows.view(4));
    made.detail = rows.text(5);
    made.grantTitle = rows.text(6);
    made.funderName = rows.text(7);
    if (!rows.is_null(8))
        made.amount = Money{rows.integer(8)};
    made.done = rows.integer(9) != 0;
    return made;
}

std::vector<AgendaItem> agenda_of(SqliteRows& rows)
{
    std::vector<AgendaItem> items;
    rows.rewind();
    while (rows.next())
        items.push_back(item(rows));
    return items;
}

void all_items(benchmark::State& state)
{
    const GrantFile file = made_file(static_cast<std::size_t>(state.range(0)));
    SqliteDatabase db(file_schema);
    fill(db, file);
    SqliteRows rows(db, ("SELECT * FROM (" + std::string(agenda_rows) + ") ORDER BY day, rank, title, id").c_str());
    if (agenda_of(rows) != agenda(file)) {
        state.SkipWithError("the peer has other rows");
        return;
    }
    run_paired(
        state, [&] { benchmark::DoNotOptimize(agenda(file)); }, [&] { benchmark::DoNotOptimize(agenda_of(rows)); });
    state.counters["items"] = static_cast<double>(agenda(file).size());
}

BENCHMARK(all_items)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
