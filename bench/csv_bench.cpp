#include "bench/made_file.h"
#include "bench/paired.h"
#include "grants/csv_reader.h"
#include "grants/csv_writer.h"
#include "grants/grant_exporter.h"

#include <csv.h>

#include <cstdlib>
#include <string>
#include <vector>

/// Spreadsheets against libcsv: writing cells against csv_write over the same cells, the export of a file against
/// gathering its cells as rows and writing those with csv_write, and reading against its parser making the same rows.
namespace quillfern::bench {
namespace {

using grants::CSVReader;
using grants::CSVRow;
using grants::CSVWriter;
using Rows = std::vector<CSVRow>;

Rows rows_of(const grants::GrantFile& file)
{
    return CSVReader::parse(grants::GrantExporter::csv(file, Lang::en), grants::Delimiter::comma);
}

std::size_t longest_text(const Rows& rows)
{
    std::size_t size = 0;
    for (const CSVRow& row : rows)
        for (const std::string& cell : row)
            size += 2 * cell.size() + 4;
    return size + 2;
}

std::string written_by_libcsv(const Rows& rows)
{
    std::string out(longest_text(rows), '\0');
    std::size_t at = 0;
    for (const CSVRow& row : rows) {
        for (const std::string& cell : row) {
            at += csv_write(out.data() + at, out.size() - at, cell.data(), cell.size());
            out[at++] = ',';
        }
        out[at - 1] = '\r';
        out[at++] = '\n';
    }
    out.resize(at);
    return out;
}

struct LibcsvRows {
    Rows rows;
    CSVRow row;
};

Rows read_by_libcsv(const std::string& text)
{
    csv_parser parser;
    if (csv_init(&parser, CSV_REPALL_NL) != 0)
        std::abort();
    csv_set_space_func(&parser, [](unsigned char) { return 0; }); // cells as they stand, not trimmed
    LibcsvRows made;
    const auto end_cell = [](void* cell, std::size_t size, void* data) {
        static_cast<LibcsvRows*>(data)->row.emplace_back(static_cast<const char*>(cell), size);
    };
    const auto end_row = [](int, void* data) {
        auto& into = *static_cast<LibcsvRows*>(data);
        if (!into.row.empty()) // the LF of a CR LF ends a row of its own
            into.rows.push_back(std::move(into.row));
        into.row.clear();
    };
    csv_parse(&parser, text.data(), text.size(), end_cell, end_row, &made);
    csv_fini(&parser, end_cell, end_row, &made);
    csv_free(&parser);
    return std::move(made.rows);
}

Rows gathered_rows(const grants::GrantFile& file)
{
    Rows rows;
    rows.reserve(file.grants.size());
    for (const grants::Grant& grant : file.grants)
        rows.push_back(grants::GrantExporter::row(grant, file, Lang::en));
    return rows;
}

void export_file(benchmark::State& state)
{
    const grants::GrantFile file = made_file(static_cast<std::size_t>(state.range(0)));
    run_paired(
        state, [&] { benchmark::DoNotOptimize(grants::GrantExporter::csv(file, Lang::en)); },
        [&] { benchmark::DoNotOptimize(written_by_libcsv(gathered_rows(file))); });
}

void write_cells(benchmark::State& state)
{
    const Rows rows = rows_of(made_file(static_cast<std::size_t>(state.range(0))));
    run_paired(
        state, [&] { benchmark::DoNotOptimize(CSVWriter::document(rows)); },
        [&] { benchmark::DoNotOptimize(written_by_libcsv(rows)); });
}

std::string text_of_size(std::size_t bytes)
{
    const std::string grants = grants::GrantExporter::csv(made_file(2000), Lang::en);
    std::string text;
    while (text.size() < bytes)
        text += grants;
    text.resize(text.rfind("\r\n", bytes) + 2);
    return text;
}

/// What was made is dropped outside the clock.
void parse_text(benchmark::State& state)
{
    const std::string text = text_of_size(static_cast<std::size_t>(state.range(0)) << 20);
    Rows own;
    Rows theirs;
    run_paired(
        state, [&] { own = CSVReader::parse(text); }, [&] { theirs = read_by_libcsv(text); },
        [&] {
            own = Rows();
            theirs = Rows();
        });
    if (own != theirs)
        state.SkipWithError("the rows differ");
}

BENCHMARK(export_file)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(write_cells)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(parse_text)->Arg(10)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
