#include "base/decimal.h"
#include "base/line_endings.h"
#include "grants/csv_table.h"
#include "grants/csv_writer.h"
#include "platform/graphemes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quillfern;
using namespace quillfern::grants;

namespace {

bool would_run_as_a_formula(std::string_view cell)
{
    if (cell.starts_with('\t') || cell.starts_with('\r'))
        return true;
    return !cell.empty() && std::string_view("=+-@").find(cell.front()) != std::string_view::npos
        && !platform::is_joined(cell, 0) && !is_decimal(cell);
}

/// A cell as a record has it, without a mark at its edges that would join the delimiter beside it: no CSV text can hold
/// those apart.
std::string writable(std::string cell)
{
    cell = with_line_feeds(std::move(cell));
    const bool joins = !cell.empty()
        && (cell.starts_with("\uFEFF") || platform::extends_previous(cell, 0)
            || platform::prepends_next(cell, cell.size()));
    return joins ? "<" + cell + ">" : cell;
}

void check(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

/// Whatever the bytes, they are read as rows; and rows that were written are read back the same, but for the apostrophe
/// before what a spreadsheet would run.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = CSVReader::decode(std::string(reinterpret_cast<const char*>(data), size));
    const CSVTable table(text);
    std::vector<CSVRow> grid = CSVReader::parse(text, std::nullopt, true);
    check(CSVReader::parse(text).size() <= grid.size() && table.rows.size() <= grid.size());
    for (CSVRow& row : grid)
        for (std::string& cell : row)
            cell = writable(std::move(cell));

    if (grid.empty()) // a document without rows is one line break, which reads as an empty row
        grid.push_back({""});
    std::vector<CSVRow> read = CSVReader::parse(CSVWriter::document(grid), Delimiter::comma, true);
    check(!read.empty() && read.back() == CSVRow{""});
    read.pop_back();
    for (CSVRow& row : grid)
        for (std::string& cell : row)
            if (would_run_as_a_formula(cell))
                cell.insert(0, 1, '\'');
    check(read == grid);
    return 0;
}
