#include "base/decimal.h"

#include <gtest/gtest.h>

#include <string>

namespace quillfern {
namespace {

TEST(Decimal, RoundsExactlyAndHalvesAwayFromZero)
{
    const struct {
        std::string text;
        std::int64_t cents;
    } cases[] = {
        {"12.345", 1235},
        {"1.005", 101},
        {"19.995", 2000},
        {"-0.005", -1},
        {"-0.0049999999999999999999999", 0},
        {"0.005", 1},
        {"0.0049999", 0},
        {".5", 50},
        {"5.", 500},
        {"+1", 100},
        {"1e3", 100000},
        {"1E+3", 100000},
        {"125e-2", 125},
        {"5e-3", 1},
        {"4e-3", 0},
        {"9.995", 1000},
        {"-0", 0},
        {"0e999999999999999999999", 0},
        {"1e-99999999999999999999999999", 0},
        {"0000000000000000000000000000001.00", 100},
        {"0." + std::string(40, '0') + "5e38", 1},
        {"5" + std::string(60, '0') + "e-63", 1},
        {"92233720368547758.07", 9223372036854775807},
        {"-92233720368547758.08", INT64_MIN},
        {"92233720368547758.0749999", 9223372036854775807},
    };
    for (const auto& [text, cents] : cases)
        EXPECT_EQ(parse_scaled_decimal(text, 2), cents) << text;
    EXPECT_EQ(parse_scaled_decimal("0.5", 0), 1);
    EXPECT_EQ(parse_scaled_decimal("-9.223372036854775808", 18), INT64_MIN);
}

TEST(Decimal, OutOfRangeIsAbsentButStillADecimal)
{
    for (const std::string text : {"92233720368547758.08", "92233720368547758.075", "-92233720368547758.085", "1e17",
             "1e99999999999999999999999", "-99999999999999999999999999"}) {
        EXPECT_EQ(parse_scaled_decimal(text, 2), std::nullopt) << text;
        EXPECT_TRUE(is_decimal(text)) << text;
    }
}

TEST(Decimal, OtherTextsAreNoDecimals)
{
    for (const std::string text : {"", ".", "-", "+.", "e3", ".e3", "1e", "1e+", "1,000", "0x10", "nan", "inf", " 1",
             "1 ", "1.2.3", "--1", "+-1", "1e3.5", "1_0", "１"})
        EXPECT_FALSE(is_decimal(text)) << text;
    EXPECT_FALSE(is_decimal(std::string_view("1\0", 2)));
}

} // namespace
} // namespace quillfern
