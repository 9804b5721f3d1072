#include "grants/csv_reader.h"
#include "grants/csv_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

namespace quillfern::grants {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using Rows = std::vector<CSVRow>;

TEST(CSVReader, TriesTheEncodingsInTurn)
{
    EXPECT_EQ(CSVReader::decode("\xFF\xFE"
                                "a\0\xE9\0"s),
        "aé");
    EXPECT_EQ(CSVReader::decode("\xFE\xFF\0a\0\xE9"s), "aé");
    EXPECT_EQ(CSVReader::decode("aé"), "aé");
    EXPECT_EQ(CSVReader::decode("caf\xE9 \x80"), "café €") << "Windows-1252";
    EXPECT_EQ(CSVReader::decode("caf\x8E \x8D"), "café ç")
        << "8D is undefined in Windows-1252, so this is Mac OS Roman";
    EXPECT_EQ(CSVReader::decode(""), "");
    EXPECT_THAT(CSVReader::parse(CSVReader::decode("\xEF\xBB\xBF\"a,b\""), {}, false), ElementsAre(CSVRow{"a,b"}))
        << "behind a byte-order mark a quote still opens the cell";
}

TEST(CSVReader, GuessesTheDelimiterFromTheFirstLine)
{
    struct Case {
        std::string_view text;
        Delimiter expected;
    };
    for (const Case& sheet : {
             Case{"a;b;c", Delimiter::semicolon},
             Case{"a,b;c", Delimiter::comma},
             Case{"a;b\tc", Delimiter::semicolon},
             Case{"a\tb", Delimiter::tab},
             Case{"alone", Delimiter::comma},
             Case{"", Delimiter::comma},
             Case{"\",,,,\";b", Delimiter::semicolon},
             Case{"\"a\"\",,\";b", Delimiter::semicolon},
             Case{"a;b\n,,,,", Delimiter::semicolon},
             Case{"a;b\r,,,,", Delimiter::semicolon},
             Case{"a;b\r\n,,,,", Delimiter::semicolon},
             Case{"\"two\r\nlines\";b,", Delimiter::comma},
             Case{"a,\u0301,\u0301;b", Delimiter::semicolon},
             Case{"\"\u0301,;;", Delimiter::semicolon},
             Case{"\"never closed;;;", Delimiter::comma},
         })
        EXPECT_EQ(CSVReader::detectDelimiter(sheet.text), sheet.expected) << sheet.text;
}

TEST(CSVReader, ReadsCellsAsTheyStand)
{
    struct Case {
        std::string text;
        Rows expected;
    };
    for (const Case& sheet : {
             Case{"", {{""}}},
             Case{"a,b", {{"a", "b"}}},
             Case{"a,b\n", {{"a", "b"}, {""}}},
             Case{"a\rb\nc\r\nd\r\re", {{"a"}, {"b"}, {"c"}, {"d"}, {""}, {"e"}}},
             Case{" a , b ", {{" a ", " b "}}},
             Case{",", {{"", ""}}},
             Case{R"("He said ""hi""",x)", {{R"(He said "hi")", "x"}}},
             Case{"\"a,b\r\nc\rd\",e", {{"a,b\r\nc\rd", "e"}}},
             Case{R"("ab"c,a"b,"a" "b")", {{"abc", "a\"b", "a \"b\""}}},
             Case{R"("","""",x"")", {{"", "\"", "x\"\""}}},
             Case{"a,\u0301b", {{"a,\u0301b"}}},
             Case{"\"\u0301a,b", {{"\"\u0301a", "b"}}},
             Case{"\"a\"\u0301,b\"", {{"a\"\u0301,b"}}},
             Case{"\u0600,b,c", {{"\u0600,b", "c"}}},
             Case{"a\n\u0301b", {{"a"}, {"\u0301b"}}},
             Case{"a\0b,c"s, {{"a\0b"s, "c"}}},
             Case{"a,b\nc,\"never, closed\nd", {{"a", "b"}}},
         })
        EXPECT_EQ(CSVReader::parse(sheet.text, Delimiter::comma, true), sheet.expected) << sheet.text;
    EXPECT_EQ(CSVReader::parse("a\t\u0301b;c", Delimiter::tab, true), (Rows{{"a", "\u0301b;c"}}))
        << "a tab is a control character and never joins a mark";
}

TEST(CSVReader, LeavesOutBlankRowsUnlessAskedToKeepThem)
{
    EXPECT_THAT(CSVReader::parse(""), IsEmpty());
    EXPECT_EQ(CSVReader::parse("a\n \t,\u00A0,\"\n\"\n\nb\n", Delimiter::comma), (Rows{{"a"}, {"b"}}));
    EXPECT_EQ(CSVReader::parse("a\n\nb", Delimiter::comma, true), (Rows{{"a"}, {""}, {"b"}}));
}

TEST(CSVReader, TellsOnWhichLineAQuoteIsLeftOpen)
{
    EXPECT_EQ(CSVReader::parse_and_tell("a\r\n\"b\nc\",\"d\re").unclosedQuoteLine, 3U);
    EXPECT_EQ(CSVReader::parse_and_tell("a,\"b\"").unclosedQuoteLine, std::nullopt);
}

TEST(CSVReader, TakesLinearTimeForTextsMadeToBeSlow)
{
    constexpr std::size_t size = 4 << 20;
    const auto start = std::chrono::steady_clock::now();
    std::string marks;
    for (std::size_t i = 0; i < size / 4; ++i)
        marks += "\"\u0301,";
    std::string wide_then_empty(size / 8, ',');
    wide_then_empty += std::string(size / 8, '\n');
    for (const std::string& text : {std::string(size, '"'), '"' + std::string(size, ','), marks, wide_then_empty})
        CSVReader::parse(text);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

TEST(CSVTable, SplitsOffTrimmedHeadersAndDropsBlankRowsAtTheEnd)
{
    const CSVTable table("\uFEFF Grant ;\u00A0Ask\n\nA;1;x\n;\n \n");
    EXPECT_THAT(table.headers, ElementsAre("Grant", "Ask"));
    EXPECT_EQ(table.rows, (Rows{{""}, {"A", "1", "x"}}));
    EXPECT_EQ(CSVTable("\n \n,\n"), CSVTable());
    EXPECT_EQ(CSVTable(""), CSVTable());
}

} // namespace
} // namespace quillfern::grants
