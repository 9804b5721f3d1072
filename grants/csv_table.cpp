#include "grants/csv_table.h"

#include "base/trim.h"

#include <utility>

namespace quillfern::grants {

CSVTable::CSVTable(std::string_view text, std::optional<Delimiter> delimiter)
    : CSVTable(CSVReader::parse(text, delimiter, true))
{
}

CSVTable::CSVTable(std::vector<CSVRow> all_rows)
{
    while (!all_rows.empty() && is_blank_row(all_rows.back()))
        all_rows.pop_back();
    if (all_rows.empty())
        return;
    for (const std::string& header : all_rows.front())
        headers.emplace_back(trimmed(header));
    all_rows.erase(all_rows.begin());
    rows = std::move(all_rows);
}

} // namespace quillfern::grants
