#include "platform/text_decoding.h"

#include <gtest/gtest.h>

namespace quillfern::platform {
namespace {

using namespace std::string_view_literals;

TEST(TextDecoding, Utf16InEitherOrderLosesItsMarkAndKeepsEverythingElse)
{
    EXPECT_EQ(decode_utf16("\xFF\xFE"
                           "a\0\xE9\0\x3C\xD8\x72\xDF"sv),
        "aé🍲");
    EXPECT_EQ(decode_utf16("\xFE\xFF"
                           "\0a\0\xE9"sv),
        "aé");
    EXPECT_EQ(decode_utf16("\xFF\xFE"sv), "");
    EXPECT_EQ(decode_utf16("\xFF\xFE"
                           "\x3C\xD8"
                           "a\0"sv),
        "\uFFFDa")
        << "half a pair";
    EXPECT_EQ(decode_utf16("\xFF\xFE"
                           "a\0b"sv),
        "a\uFFFD")
        << "an odd byte at the end";
    EXPECT_TRUE(has_utf16_mark("\xFE\xFF"));
    EXPECT_FALSE(has_utf16_mark("\xFE"));
}

TEST(TextDecoding, LongTextsAreNotCutAtABufferEnd)
{
    std::string latin(100'001, '\xE9');
    std::string expected;
    for (std::size_t i = 0; i < latin.size(); ++i)
        expected += "é";
    EXPECT_EQ(decode_windows_1252(latin), expected);
}

TEST(TextDecoding, Windows1252RefusesItsFiveUndefinedBytesOnly)
{
    EXPECT_EQ(decode_windows_1252("\x80 \x93x\x94 \xFF"), "€ “x” ÿ");
    int refused = 0;
    for (int byte = 0; byte < 256; ++byte)
        refused += decode_windows_1252(std::string(1, static_cast<char>(byte))) ? 0 : 1;
    EXPECT_EQ(refused, 5);
    for (const std::string_view bytes : {"\x81"sv, "\x8D"sv, "\x8F"sv, "\x90"sv, "a\x9D"sv})
        EXPECT_EQ(decode_windows_1252(bytes), std::nullopt);
}

TEST(TextDecoding, MacRomanHasAMeaningForEveryByte)
{
    EXPECT_EQ(decode_mac_roman("\x8E\xD2\xDB\x81"), "é“€Å");
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_NE(decode_mac_roman(std::string(1, static_cast<char>(byte))), "\uFFFD") << byte;
}

TEST(TextDecoding, InvalidUtf8IsFound)
{
    EXPECT_TRUE(is_valid_utf8("é🍲\0x"sv));
    for (const std::string_view bytes : {"\xE9"sv, "\xC0\xAF"sv, "\xED\xA0\x80"sv, "\xF4\x90\x80\x80"sv, "\xC3"sv})
        EXPECT_FALSE(is_valid_utf8(bytes));
}

} // namespace
} // namespace quillfern::platform
