#include "bench/json_walk.h"
#include "bench/made_file.h"
#include "bench/paired.h"
#include "grants/grant_file_json.h"

#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <simdjson.h>

#include <optional>

/// Reading an organization file against a bare walk of the same bytes by simdjson, and writing it against RapidJSON's
/// PrettyWriter printing the same text.
namespace quillfern::bench {
namespace {

const FreshValues fresh{[] { return Uuid{}; }, Instant{}};

void read_file(benchmark::State& state)
{
    std::string json = grants::write_grant_file(made_file(static_cast<std::size_t>(state.range(0))));
    json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    // The reader takes the text over, as it does when a package is opened; what it made is dropped outside the clock.
    std::string taken_over;
    std::optional<Result<grants::GrantFileRead, grants::GrantFileError>> made;
    run_paired(
        state, [&] { made = grants::read_grant_file(std::move(taken_over), fresh); },
        [&] { benchmark::DoNotOptimize(walk_json(json)); },
        [&] {
            made.reset();
            taken_over = json;
            taken_over.reserve(json.capacity());
        });
    state.counters["bytes"] = static_cast<double>(json.size());
}

void write_file(benchmark::State& state)
{
    const grants::GrantFile file = made_file(static_cast<std::size_t>(state.range(0)));
    rapidjson::Document document;
    document.Parse(grants::write_grant_file(file).c_str());
    run_paired(
        state, [&] { benchmark::DoNotOptimize(grants::write_grant_file(file)); },
        [&] {
            rapidjson::StringBuffer buffer;
            rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
            writer.SetIndent(' ', 2);
            document.Accept(writer);
            benchmark::DoNotOptimize(buffer.GetString());
        });
}

BENCHMARK(read_file)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(write_file)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
