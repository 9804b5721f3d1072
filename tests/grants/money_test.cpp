#include "grants/money.h"

#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

TEST(Money, PercentagesRoundHalvesAwayFromZero)
{
    EXPECT_EQ(Money{1250}.percentage(50), Money{625});
    EXPECT_EQ(Money{1}.percentage(50), Money{1});
    EXPECT_EQ(Money{-1}.percentage(50), Money{-1});
    EXPECT_EQ(Money{1}.percentage(49), Money{0});
    EXPECT_EQ(Money{-149}.percentage(1), Money{-1});
    EXPECT_EQ(Money{-150}.percentage(1), Money{-2});
    EXPECT_EQ(Money{100001}.percentage(50), Money{50001});
}

TEST(Money, WritesAndReadsFileText)
{
    const struct {
        std::int64_t cents;
        std::string_view text;
    } cases[] = {
        {0, "0.00"},
        {5, "0.05"},
        {-5, "-0.05"},
        {100, "1.00"},
        {125000, "1250.00"},
        {-1250, "-12.50"},
        {INT64_MAX, "92233720368547758.07"},
        {INT64_MIN, "-92233720368547758.08"},
    };
    for (const auto& [cents, text] : cases) {
        EXPECT_EQ(Money{cents}.text(), text);
        EXPECT_EQ(Money::parse(text), Money{cents});
    }
    EXPECT_EQ(Money::parse("\t12.345\u00A0"), Money{1235});
    EXPECT_EQ(Money::parse("7"), Money{700});
    for (const std::string_view text : {"", " ", "1,000", "$5", "5 USD", "92233720368547758.08", "1 000"})
        EXPECT_EQ(Money::parse(text), std::nullopt) << text;
}

TEST(Money, CentsShowWhenThereAreAnyOrWhenAskedFor)
{
    EXPECT_EQ(display_text(Money{125000}, "USD", Lang::en), "$1,250");
    EXPECT_EQ(display_text(Money{125050}, "USD", Lang::en), "$1,250.50");
    EXPECT_EQ(display_text(Money{-5}, "USD", Lang::es), "-$0.05");
    EXPECT_EQ(display_text(Money{125000}, "USD", Lang::en, true), "$1,250.00");
    EXPECT_EQ(display_text(Money{125050}, "USD", Lang::en, false), "$1,251");
}

TEST(MoneyDeathTest, AnOverflowStopsTheProgram)
{
    EXPECT_DEATH(Money{INT64_MAX} + Money{1}, "64 bits");
    EXPECT_DEATH(Money{INT64_MIN} - Money{1}, "64 bits");
    EXPECT_DEATH(Money::from_units(INT64_MAX / 100 + 1), "64 bits");
    EXPECT_DEATH(Money{INT64_MAX / 2}.percentage(3), "64 bits");
    EXPECT_DEATH(Money{INT64_MAX}.percentage(1), "64 bits");
}

} // namespace
} // namespace quillfern::grants
