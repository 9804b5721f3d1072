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

/// Touches every value as a reader has to: strings unescaped, numbers and literals parsed.
std::size_t walk(simdjson::ondemand::value value)
{
    switch (value.type().value_unsafe()) {
    case simdjson::ondemand::json_type::object: {
        std::size_t sum = 0;
        simdjson::ondemand::object object;
        if (value.get_object().get(object))
            return 0;
        for (auto member : object) {
            sum += member.unescaped_key().value_unsafe().size();
            sum += walk(member.value().value_unsafe());
        }
        return sum;
    }
    case simdjson::ondemand::json_type::array: {
        std::size_t sum = 0;
        simdjson::ondemand::array array;
        if (value.get_array().get(array))
            return 0;
        for (auto element : array)
            sum += walk(element.value_unsafe());
        return sum;
    }
    case simdjson::ondemand::json_type::string:
        return value.get_string().value_unsafe().size();
    case simdjson::ondemand::json_type::number:
        return static_cast<std::size_t>(value.get_double().value_unsafe());
    default:
        return value.get_bool().value_unsafe() ? 1 : 0;
    }
}

std::size_t walk_document(const std::string& json)
{
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document;
    const simdjson::padded_string_view padded(json, json.capacity());
    if (parser.iterate(padded).get(document))
        std::abort();
    return walk(document.get_value().value_unsafe());
}

void read_file(benchmark::State& state)
{
    std::string json = grants::write_grant_file(made_file(static_cast<std::size_t>(state.range(0))));
    json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    // The reader takes the text over, as it does when a package is opened; what it made is dropped outside the clock.
    std::string taken_over;
    std::optional<Result<grants::GrantFileRead, grants::GrantFileError>> made;
    run_paired(
        state, [&] { made = grants::read_grant_file(std::move(taken_over), fresh); },
        [&] { benchmark::DoNotOptimize(walk_document(json)); },
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
