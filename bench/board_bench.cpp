#include "bench/json_walk.h"
#include "bench/paired.h"
#include "board/board_json.h"
#include "board/sample_board.h"

#include <simdjson.h>

#include <optional>

/// Reading a board against a bare walk of the same bytes by simdjson.
namespace quillfern::bench {
namespace {

void number(Uuid& id, std::uint8_t round_low, std::uint8_t round_high)
{
    id.bytes[8] = static_cast<std::uint8_t>(0x80 | (round_high & 0x3F));
    id.bytes[9] = round_low;
}

/// The sample's meetings over and over, each time with identifiers of their own.
board::Board made_board(std::size_t meetings)
{
    board::Board board =
        board::sample_board(board::SampleBoard::nonprofit, 20'706, Lang::en, board::Calendar::with_offset(0));
    const auto pattern = board.meetings;
    board.meetings.clear();
    for (std::size_t i = 0; i < meetings; ++i)
        board.meetings.push_back(pattern[i % pattern.size()].with([&](board::Meeting& meeting) {
            const auto round = i / pattern.size();
            const auto low = static_cast<std::uint8_t>(round), high = static_cast<std::uint8_t>(round >> 8);
            number(meeting.id, low, high);
            for (board::AgendaItem& item : meeting.agenda)
                number(item.id, low, high);
            for (board::Motion& motion : meeting.motions)
                number(motion.id, low, high);
        }));
    return board;
}

void read_board(benchmark::State& state)
{
    const FreshValues fresh{[] { return Uuid{}; }, Instant{}};
    std::string json = board::write_board(made_board(static_cast<std::size_t>(state.range(0))));
    json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    std::string taken_over;
    std::optional<Result<board::BoardRead, ReadError>> made;
    run_paired(
        state, [&] { made = board::read_board(std::move(taken_over), fresh); },
        [&] { benchmark::DoNotOptimize(walk_json(json)); },
        [&] {
            made.reset();
            taken_over = json;
            taken_over.reserve(json.capacity());
        });
    if (!made || !*made || !(*made)->notes.empty())
        state.SkipWithError("the board did not read back cleanly");
    state.counters["bytes"] = static_cast<double>(json.size());
}

BENCHMARK(read_board)->Arg(100)->Arg(1000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
