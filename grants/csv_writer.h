#pragma once

#include "grants/csv_reader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillfern::grants {

/// Writes cells as the text of a spreadsheet file: UTF-8 without a byte-order mark, commas, CR LF after every row.
///
/// A spreadsheet program must never run a cell as a formula. A cell that begins like one (= + - @, tab or CR) gets an
/// apostrophe in front, unless it is a plain number:
///
///     CSVWriter::line({"=SUM(A1)", "-250", "a;b"})   // '=SUM(A1),-250,"a;b"
///
/// Cells with a comma, semicolon, quote, LF or CR are quoted; the semicolon for programs that separate with it. These
/// are user-perceived characters: CR LF is neither a CR nor an LF, so a cell whose only line breaks are CR LF is not
/// quoted and would end its row. Records hold LF alone (see base/line_endings.h), so that no such cell arises.
struct CSVWriter {
    static std::string cell(std::string_view text);
    static std::string line(const CSVRow& cells);
    static std::string document(const std::vector<CSVRow>& rows);
};

/// Makes such a document cell by cell, for a writer that has the cells' texts but no rows of them.
class CSVBuilder {
public:
    void reserve(std::size_t bytes) { text_.reserve(bytes); }

    void add_cell(std::string_view text);
    void add_plain_cell(std::string_view text); ///< digits with points or hyphens among them: nothing to guard or quote
    void end_row();

    std::string finish() && { return std::move(text_); }

private:
    void begin_cell();

    std::string text_;
    bool row_is_empty_ = true;
};

} // namespace quillfern::grants
