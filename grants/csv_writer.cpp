#include "grants/csv_writer.h"

#include "base/decimal.h"
#include "platform/graphemes.h"

#include <array>
#include <cstddef>

namespace quillfern::grants {

namespace {

constexpr std::string_view row_end = "\r\n";

constexpr auto may_need_quotes = [] {
    std::array<bool, 256> table{};
    for (const char character : {',', ';', '"', '\n', '\r'})
        table[static_cast<unsigned char>(character)] = true;
    return table;
}();

bool starts_like_a_formula(std::string_view text)
{
    if (text.empty())
        return false;
    switch (text.front()) {
    case '=':
    case '+':
    case '-':
    case '@':
        return !platform::is_joined(text, 0);
    case '\t':
        return true;
    case '\r':
        return !text.starts_with("\r\n");
    default:
        return false;
    }
}

bool needs_apostrophe(std::string_view text)
{
    return starts_like_a_formula(text) && !is_decimal(text);
}

bool needs_quotes(std::string_view text)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!may_need_quotes[static_cast<unsigned char>(text[at])])
            continue;
        if (text[at] == '\n')
            return true;
        if (text[at] == '\r') {
            if (at + 1 == text.size() || text[at + 1] != '\n')
                return true;
            ++at;
        } else if (!platform::is_joined(text, at)) {
            return true;
        }
    }
    return false;
}

/// A quote with a combining mark is not doubled: the reader takes it for an ordinary character.
void append_with_quotes_doubled(std::string& out, std::string_view text)
{
    std::size_t from = 0;
    for (std::size_t quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"', quote + 1)) {
        if (platform::is_joined(text, quote))
            continue;
        out.append(text, from, quote + 1 - from);
        from = quote;
    }
    out.append(text, from);
}

void append_cell(std::string& out, std::string_view text)
{
    const bool quoted = needs_quotes(text);
    if (quoted)
        out += '"';
    if (needs_apostrophe(text))
        out += '\'';
    if (quoted) {
        append_with_quotes_doubled(out, text);
        out += '"';
    } else {
        out += text;
    }
}

void append_line(std::string& out, const CSVRow& cells)
{
    bool first = true;
    for (const std::string& cell : cells) {
        if (!first)
            out += ',';
        first = false;
        append_cell(out, cell);
    }
}

std::size_t likely_size(const std::vector<CSVRow>& rows)
{
    std::size_t size = 0;
    for (const CSVRow& row : rows) {
        for (const std::string& cell : row)
            size += cell.size() + 1;
        size += row_end.size();
    }
    return size + size / 16;
}

} // namespace

std::string CSVWriter::cell(std::string_view text)
{
    std::string out;
    append_cell(out, text);
    return out;
}

std::string CSVWriter::line(const CSVRow& cells)
{
    std::string out;
    append_line(out, cells);
    return out;
}

std::string CSVWriter::document(const std::vector<CSVRow>& rows)
{
    std::string out;
    out.reserve(likely_size(rows));
    for (const CSVRow& row : rows)
        append_row(out, row);
    return out;
}

void CSVWriter::append_row(std::string& out, const CSVRow& cells)
{
    append_line(out, cells);
    out += row_end;
}

} // namespace quillfern::grants
