#include "grants/csv_writer.h"

#include "base/decimal.h"
#include "platform/graphemes.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <string_view>

namespace quillfern::grants {
namespace {

TEST(CSVWriter, GuardsWhatASpreadsheetWouldRunAndQuotesWhatWouldSplit)
{
    struct Case {
        std::string_view text;
        std::string_view expected;
    };
    for (const Case& cell : {
             Case{"", ""},
             Case{"plain", "plain"},
             Case{"=1+1", "'=1+1"},
             Case{"@name", "'@name"},
             Case{"-", "'-"},
             Case{"-5", "-5"},
             Case{"+3.5", "+3.5"},
             Case{"-.5e+3", "-.5e+3"},
             Case{"-5.", "-5."},
             Case{"-5%", "'-5%"},
             Case{"-5 ", "'-5 "},
             Case{"+1e", "'+1e"},
             Case{"-1.2.3", "'-1.2.3"},
             Case{"+nan", "'+nan"},
             Case{"-inf", "'-inf"},
             Case{"+0x10", "'+0x10"},
             Case{"-1,5", "\"'-1,5\""},
             Case{"\t1", "'\t1"},
             Case{"\r1", "\"'\r1\""},
             Case{"\r\n1", "\r\n1"},
             Case{"=\u0338a", "=\u0338a"}, // one character, and not an equals sign
             Case{"a;b", "\"a;b\""},
             Case{"a\nb", "\"a\nb\""},
             Case{"a\rb", "\"a\rb\""},
             Case{"a\r\nb", "a\r\nb"},
             Case{"a\r\r\nb", "\"a\r\r\nb\""},
             Case{"a\n\r\nb", "\"a\n\r\nb\""},
             Case{"He said \"hi\"", "\"He said \"\"hi\"\"\""},
             Case{"=\"", "\"'=\"\"\""},
             Case{"a,\u0301", "a,\u0301"},
             Case{"\"\u0301,", "\"\"\u0301,\""},
         })
        EXPECT_EQ(CSVWriter::cell(cell.text), cell.expected) << cell.text;
}

TEST(CSVWriter, EndsEveryRowWithCarriageReturnAndLineFeed)
{
    EXPECT_EQ(CSVWriter::line({"a", "", "b;c"}), "a,,\"b;c\"");
    EXPECT_EQ(CSVWriter::document({{"a", "b"}, {}, {"c"}}), "a,b\r\n\r\nc\r\n");
    EXPECT_EQ(CSVWriter::document({}), "\r\n");
}

bool would_run_as_a_formula(std::string_view cell)
{
    if (cell.starts_with('\t') || cell.starts_with('\r'))
        return true;
    return !cell.empty() && std::string_view("=+-@").find(cell.front()) != std::string_view::npos
        && !platform::is_joined(cell, 0) && !is_decimal(cell);
}

/// Random cells of everything that matters to the reader. The marks that would join the delimiter beside them stand
/// inside a cell only: at its edge no CSV text can hold them apart.
class RandomCells {
public:
    std::string next()
    {
        std::string cell;
        for (int pieces = pick(6); pieces > 0; --pieces)
            cell += inner_pieces[static_cast<std::size_t>(pick(inner_pieces.size()))];
        if (pick(4) == 0)
            cell = "a\u0301" + cell + "\u0600b";
        const std::size_t line_break = cell.find("\r\n");
        return line_break == std::string::npos ? cell : cell.substr(0, line_break);
    }

    int pick(std::size_t below) { return std::uniform_int_distribution<int>(0, static_cast<int>(below) - 1)(random_); }

private:
    static constexpr std::array inner_pieces{"a", "7", ".", "e", " ", "é", "=", "+", "-", "@", "\t", "\r", "\n", ",",
        ";", "\"", "'", "\"\u0301", ",\u200D", "\u0600\"", "\U0001F33F"};

    std::mt19937 random_{20270315};
};

TEST(CSVWriter, WritesWhatTheReaderReadsBackWithoutAnUnguardedFormula)
{
    RandomCells cells;
    for (int round = 0; round < 3000; ++round) {
        std::vector<CSVRow> grid(static_cast<std::size_t>(1 + cells.pick(4)));
        for (CSVRow& row : grid)
            for (int columns = 1 + cells.pick(4); columns > 0; --columns)
                row.push_back(cells.next());
        const std::string text = CSVWriter::document(grid);

        for (CSVRow& row : grid)
            for (std::string& cell : row)
                if (would_run_as_a_formula(cell))
                    cell.insert(0, 1, '\'');
        std::vector<CSVRow> read = CSVReader::parse(text, Delimiter::comma, true);
        ASSERT_EQ(read.back(), CSVRow{""}) << text;
        read.pop_back();
        ASSERT_EQ(read, grid) << text;
        for (const CSVRow& row : read)
            for (const std::string& cell : row)
                ASSERT_FALSE(would_run_as_a_formula(cell)) << text;
    }
}

} // namespace
} // namespace quillfern::grants
