#include "grants/csv_writer.h"

#include "base/byte_search.h"
#include "base/decimal.h"
#include "platform/graphemes.h"

#include <cstddef>

namespace quillfern::grants {

namespace {

constexpr std::string_view row_end = "\r\n";

constexpr ByteSearch may_need_quotes{',', ';', '"', '\n', '\r'};

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
    for (std::size_t at = may_need_quotes.find(text, 0); at < text.size(); at = may_need_quotes.find(text, at + 1)) {
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
    CSVBuilder line;
    for (const std::string& cell : cells)
        line.add_cell(cell);
    return std::move(line).finish();
}

std::string CSVWriter::document(const std::vector<CSVRow>& rows)
{
    CSVBuilder document;
    document.reserve(likely_size(rows));
    if (rows.empty()) // rows are joined by line breaks and one ends the file
        document.end_row();
    for (const CSVRow& row : rows) {
        for (const std::string& cell : row)
            document.add_cell(cell);
        document.end_row();
    }
    return std::move(document).finish();
}

void CSVBuilder::begin_cell()
{
    if (!row_is_empty_)
        text_ += ',';
    row_is_empty_ = false;
}

void CSVBuilder::add_cell(std::string_view text)
{
    begin_cell();
    if (!text.empty())
        append_cell(text_, text);
}

void CSVBuilder::add_plain_cell(std::string_view text)
{
    begin_cell();
    text_ += text;
}

void CSVBuilder::end_row()
{
    text_ += row_end;
    row_is_empty_ = true;
}

} // namespace quillfern::grants
