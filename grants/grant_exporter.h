#pragma once

#include "base/text.h"
#include "grants/csv_reader.h"
#include "grants/grant_file.h"
#include "grants/import_fields.h"

#include <optional>
#include <string>

namespace quillfern::grants {

/// Writes the grants of a file as one spreadsheet (see CSVWriter), and the template that an import understands.
///
/// The header row is followed by one row a grant, in the file's order. Amounts are plain decimals without a currency
/// (12500.00), days ISO (2027-03-15), a probability a whole percent (60%); what is not set is an empty cell.
struct GrantExporter {
    static constexpr auto fields = all_import_fields;

    static std::string csv(const GrantFile& file, Lang lang);

    /// The cells of one grant in the order of `fields`. The file gives the funder's name. An ask of zero is an empty
    /// cell, since that is how a grant without an ask may be held; an award of zero is 0.00.
    static CSVRow row(const Grant& grant, const GrantFile& file, Lang lang);

    /// The header row and two sample grants that show how each kind of cell is written.
    static std::string template_(Lang lang);
};

/// The earliest due day among the reports that are not submitted.
std::optional<Day> next_report_due(const Grant& grant);

} // namespace quillfern::grants
