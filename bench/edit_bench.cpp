#include "bench/made_file.h"
#include "bench/paired.h"
#include "grants/grant_file_json.h"

#include <malloc.h>

#include <cstdint>

/// One grant's edit, keeping the value before it for undo, against a deep copy of the file; and the memory of an open
/// file and of one undo step.
namespace quillfern::bench {
namespace {

using grants::Grant;
using grants::GrantFile;

std::int64_t bytes_in_use()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}

GrantFile edited(const GrantFile& file, std::size_t index)
{
    GrantFile after = file;
    Shared<Grant>& grant = after.grants[index];
    grant = grant.with([](Grant& changed) { changed.ask = grants::Money{changed.ask->cents + 1}; });
    return after;
}

template <class T>
void copy_nodes(std::vector<Shared<T>>& nodes)
{
    for (Shared<T>& node : nodes)
        node = Shared<T>(T(*node));
}

GrantFile deep_copy(const GrantFile& file)
{
    GrantFile copy = file;
    copy_nodes(copy.grants);
    copy_nodes(copy.funders);
    copy_nodes(copy.people);
    return copy;
}

void edit(benchmark::State& state)
{
    constexpr std::size_t batch = 20; // one edit is too short to time alone
    const GrantFile file = made_file(static_cast<std::size_t>(state.range(0)));
    run_paired(
        state,
        [&] {
            for (std::size_t i = 0; i < batch; ++i)
                benchmark::DoNotOptimize(edited(file, i));
        },
        [&] {
            for (std::size_t i = 0; i < batch; ++i)
                benchmark::DoNotOptimize(deep_copy(file));
        });
    const std::int64_t before = bytes_in_use();
    const GrantFile after = edited(file, 0);
    state.counters["retained_kb"] = static_cast<double>(bytes_in_use() - before) / 1024;
}

void open_file_memory(benchmark::State& state)
{
    const FreshValues fresh{[] { return Uuid{}; }, Instant{}};
    const std::string json = grants::write_grant_file(made_file(static_cast<std::size_t>(state.range(0))));
    std::int64_t bytes = 0;
    for (auto _ : state) {
        const std::int64_t before = bytes_in_use();
        const auto file = grants::read_grant_file(json, fresh);
        bytes = bytes_in_use() - before;
        benchmark::DoNotOptimize(file.ok());
    }
    state.counters["bytes_a_grant"] = static_cast<double>(bytes) / static_cast<double>(state.range(0));
}

BENCHMARK(edit)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(open_file_memory)->Arg(200)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
