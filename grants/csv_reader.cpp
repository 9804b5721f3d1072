#include "grants/csv_reader.h"

#include "base/byte_search.h"
#include "base/trim.h"
#include "platform/graphemes.h"
#include "platform/text_decoding.h"

#include <algorithm>
#include <utility>

namespace quillfern::grants {

namespace {

constexpr std::string_view byte_order_mark = "\uFEFF";

/// No sheet that people make has more columns; one that pretends to must not cost its width in memory at every row.
constexpr std::size_t likely_columns = 64;

bool is_plain(std::string_view text, std::size_t position)
{
    return text[position] == '\t' || !platform::is_joined(text, position);
}

class Parser {
public:
    Parser(std::string_view text, Delimiter delimiter, bool keep_blank_rows)
        : text_(text), delimiter_(static_cast<char>(delimiter)), keep_blank_rows_(keep_blank_rows),
          cell_ends_(delimiter_, '\n', '\r')
    {
    }

    ParsedCSV run()
    {
        RowEnd end = RowEnd::line;
        while (end == RowEnd::line) {
            const std::size_t columns = result_.rows.empty() ? 0 : result_.rows.back().size();
            CSVRow& row = result_.rows.emplace_back();
            row.reserve(std::min(columns, likely_columns));
            end = read_row(row);
            if (end == RowEnd::unclosedQuote || (!keep_blank_rows_ && is_blank_row(row)))
                result_.rows.pop_back();
        }
        return std::move(result_);
    }

private:
    enum class RowEnd { line, text, unclosedQuote };

    /// A text that ends without a line break ends its last row all the same.
    RowEnd read_row(CSVRow& row)
    {
        while (true) {
            if (is_quote(at_)) {
                std::string& cell = row.emplace_back();
                if (!read_quoted(cell))
                    return RowEnd::unclosedQuote;
                cell += take_unquoted();
            } else {
                row.emplace_back(take_unquoted());
            }
            if (at_ == text_.size())
                return RowEnd::text;
            if (text_[at_++] == delimiter_)
                continue;
            if (text_[at_ - 1] == '\r' && at_ < text_.size() && text_[at_] == '\n')
                ++at_;
            return RowEnd::line;
        }
    }

    bool is_quote(std::size_t position) const
    {
        return position < text_.size() && text_[position] == '"' && is_plain(text_, position);
    }

    /// Reads from the opening quote to behind the closing one; false when there is none.
    bool read_quoted(std::string& cell)
    {
        const std::size_t opening = at_++;
        while (true) {
            std::size_t quote = text_.find('"', at_);
            while (quote != std::string_view::npos && !is_plain(text_, quote))
                quote = text_.find('"', quote + 1);
            if (quote == std::string_view::npos) {
                result_.unclosedQuoteLine = line_of(opening);
                return false;
            }
            const bool doubled = is_quote(quote + 1);
            cell.append(text_, at_, quote - at_ + (doubled ? 1 : 0));
            at_ = quote + (doubled ? 2 : 1);
            if (!doubled)
                return true;
        }
    }

    std::string_view take_unquoted()
    {
        std::size_t end = cell_ends_.find(text_, at_);
        while (end < text_.size() && text_[end] == delimiter_ && !is_plain(text_, end))
            end = cell_ends_.find(text_, end + 1);
        const std::string_view taken = text_.substr(at_, end - at_);
        at_ = end;
        return taken;
    }

    std::size_t line_of(std::size_t position) const
    {
        std::size_t line = 1;
        for (std::size_t i = 0; i < position; ++i)
            if (text_[i] == '\n' || (text_[i] == '\r' && text_[i + 1] != '\n'))
                ++line;
        return line;
    }

    std::string_view text_;
    char delimiter_;
    bool keep_blank_rows_;
    ByteSearch<3> cell_ends_;
    std::size_t at_ = 0;
    ParsedCSV result_;
};

} // namespace

bool is_blank_row(const CSVRow& row)
{
    return std::all_of(row.begin(), row.end(), [](std::string_view cell) { return trimmed(cell).empty(); });
}

std::string CSVReader::decode(std::string bytes)
{
    if (platform::has_utf16_mark(bytes))
        return platform::decode_utf16(bytes);
    if (platform::is_valid_utf8(bytes))
        return bytes;
    if (std::optional<std::string> text = platform::decode_windows_1252(bytes))
        return *std::move(text);
    return platform::decode_mac_roman(bytes);
}

Delimiter CSVReader::detectDelimiter(std::string_view text)
{
    struct Candidate {
        Delimiter delimiter = Delimiter::comma;
        std::size_t count = 0;
    };
    // In the order in which they win a tie.
    Candidate candidates[] = {{Delimiter::comma}, {Delimiter::semicolon}, {Delimiter::tab}};

    bool quoted = false;
    for (std::size_t at = text.find_first_of("\",;\t\r\n"); at != std::string_view::npos;
         at = quoted ? text.find('"', at + 1) : text.find_first_of("\",;\t\r\n", at + 1)) {
        if (text[at] == '\r' || text[at] == '\n')
            break;
        if (!is_plain(text, at))
            continue;
        if (text[at] == '"')
            quoted = !quoted;
        for (Candidate& candidate : candidates)
            if (static_cast<char>(candidate.delimiter) == text[at])
                ++candidate.count;
    }
    return std::max_element(std::begin(candidates), std::end(candidates), [](const Candidate& a, const Candidate& b) {
        return a.count < b.count;
    })->delimiter;
}

std::vector<CSVRow> CSVReader::parse(std::string_view text, std::optional<Delimiter> delimiter, bool keepBlankRows)
{
    return parse_and_tell(text, delimiter, keepBlankRows).rows;
}

ParsedCSV CSVReader::parse_and_tell(std::string_view text, std::optional<Delimiter> delimiter, bool keepBlankRows)
{
    if (text.starts_with(byte_order_mark))
        text.remove_prefix(byte_order_mark.size());
    return Parser(text, delimiter ? *delimiter : detectDelimiter(text), keepBlankRows).run();
}

} // namespace quillfern::grants
