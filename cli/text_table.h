#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::cli {

/// Rows whose columns line up on a terminal, in any script. Headings stand between rows and take no part in the widths:
///
///     TextTable table({TextTable::left, TextTable::right});
///     table.heading("Overdue");
///     table.row({"Aug 30, 2026", "$15,000"});
class TextTable {
public:
    enum Alignment { left, right };

    explicit TextTable(std::vector<Alignment> columns) : columns_(std::move(columns)) { }

    void heading(std::string_view text); ///< with an empty line before it, unless it is the first line
    void line(std::string_view text); ///< indented like a row, and no part of the columns
    void row(std::vector<std::string> cells);

    /// Columns that are empty in every row are left out.
    std::string text() const;

private:
    struct Line {
        std::string text; ///< of a heading or a line
        std::vector<std::string> cells; ///< of a row
    };

    std::vector<std::size_t> widths() const;
    std::string row_text(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) const;

    std::vector<Alignment> columns_;
    std::vector<Line> lines_;
};

} // namespace quillfern::cli
