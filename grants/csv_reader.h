#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::grants {

/// The cells of one line of a sheet, as text.
using CSVRow = std::vector<std::string>;

/// Whether no cell holds anything but white space and line breaks.
bool is_blank_row(const CSVRow& row);

enum class Delimiter : char { comma = ',', semicolon = ';', tab = '\t' };

/// Rows, and what a person should be told about the text they came from.
struct ParsedCSV {
    std::vector<CSVRow> rows;
    /// The line (from 1) on which a quoted cell opens that never closes. That cell and its row are not among the rows.
    std::optional<std::size_t> unclosedQuoteLine;
};

/// Turns the bytes of a spreadsheet's text file into rows of cells.
///
/// It reads what people's programs write: any of three delimiters, any line ending, any of four encodings. Nothing is
/// an error; a stray quote is text. It works on user-perceived characters: a comma, semicolon or quote that is part of
/// a larger cluster (a combining mark follows it) is an ordinary character. Time is linear in the text.
///
///     CSVReader::parse("a;\"b;c\"\r\n", std::nullopt, false)   // {{"a", "b;c"}}
struct CSVReader {
    /// UTF-16 when the bytes begin with its byte-order mark; else the first of UTF-8, Windows-1252 and Mac OS Roman
    /// that they fit. Every byte has a meaning in the last, so there always is a text. A UTF-8 byte-order mark stays
    /// in it; parse() drops it.
    static std::string decode(std::string bytes);

    /// The delimiter that stands most often on the first line, quoted parts left out. The comma wins a tie and when
    /// there is none; a tie between semicolon and tab goes to the semicolon.
    static Delimiter detectDelimiter(std::string_view text);

    /// Cells come exactly as written, not trimmed. Without `keepBlankRows`, rows that hold nothing but white space are
    /// left out; with it, a text that ends with a line break has one more row of one empty cell.
    static std::vector<CSVRow> parse(
        std::string_view text, std::optional<Delimiter> delimiter = std::nullopt, bool keepBlankRows = false);

    /// As parse(), and says whether a quote was left open.
    static ParsedCSV parse_and_tell(
        std::string_view text, std::optional<Delimiter> delimiter = std::nullopt, bool keepBlankRows = false);
};

} // namespace quillfern::grants
