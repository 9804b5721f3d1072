#pragma once

#include "grants/csv_reader.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::grants {

/// A sheet split into its header row and the rows under it. A row may have fewer or more cells than there are headers.
struct CSVTable {
    std::vector<std::string> headers; ///< trimmed; empty when the text has no row at all
    std::vector<CSVRow> rows; ///< blank rows inside the sheet included, those at its end not

    CSVTable() = default;
    explicit CSVTable(std::string_view text, std::optional<Delimiter> delimiter = std::nullopt);
    explicit CSVTable(std::vector<CSVRow> all_rows);

    friend bool operator==(const CSVTable&, const CSVTable&) = default;
};

} // namespace quillfern::grants
