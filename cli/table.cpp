#include "cli/input_file.h"
#include "cli/json.h"
#include "cli/options.h"
#include "cli/remarks.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "grants/csv_table.h"

#include <algorithm>
#include <memory>
#include <optional>

template <>
inline constexpr auto quillfern::fields<quillfern::grants::CSVTable> = quillfern::field_list(
    quillfern::required("headers", &quillfern::grants::CSVTable::headers),
    quillfern::required("rows", &quillfern::grants::CSVTable::rows));

namespace quillfern::cli {

using namespace grants;

namespace {

// No spreadsheet of grants comes near these; what does is no spreadsheet, and its rows would fill the memory.
constexpr std::int64_t largest_file = 256'000'000;
constexpr std::int64_t most_cells = 32'000'000;

struct Asked {
    std::string path;
    std::optional<Delimiter> delimiter;
    bool json = false;
};

/// Counts what could end a cell, quoted or not, so it is never too low.
bool has_too_many_cells(std::string_view text)
{
    return std::count_if(text.begin(), text.end(), [](char each) {
        return each == ',' || each == ';' || each == '\t' || each == '\n' || each == '\r';
    }) > most_cells;
}

std::string as_text(const CSVTable& table)
{
    if (table.headers.empty())
        return "There are no rows.\n";
    std::size_t columns = table.headers.size();
    for (const CSVRow& row : table.rows)
        columns = std::max(columns, row.size());
    TextTable text(std::vector<TextTable::Alignment>(columns, TextTable::left));
    text.row(table.headers);
    for (const CSVRow& row : table.rows)
        text.row(row);
    return text.text();
}

Answer run(const Asked& asked)
{
    auto bytes = read_input_file(asked.path, largest_file);
    if (!bytes)
        return fail(bytes.error());
    const std::string text = CSVReader::decode(*std::move(bytes));
    if (text.find('\0') != std::string::npos)
        return fail(asked.path + " is no text file: it holds binary data.");
    if (has_too_many_cells(text))
        return fail(asked.path + " has more than " + std::to_string(most_cells) + " cells.");
    ParsedCSV parsed = CSVReader::parse_and_tell(text, asked.delimiter, true);
    if (parsed.unclosedQuoteLine) {
        print_note("The quote that opens on line " + std::to_string(*parsed.unclosedQuoteLine)
            + " is never closed; its row and what follows are left out.");
    }
    const CSVTable table(std::move(parsed.rows));
    return asked.json ? json_text(table) : as_text(table);
}

} // namespace

void add_table(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("table", "Print a spreadsheet's text file as it is read", [asked] { return run(*asked); });
    add_file(verb, asked->path, "The CSV file");
    add_delimiter(verb, asked->delimiter);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
