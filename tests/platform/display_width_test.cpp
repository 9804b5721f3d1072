#include "platform/display_width.h"

#include <gtest/gtest.h>

namespace quillfern::platform {

TEST(DisplayWidth, CountsCellsAndNotBytes)
{
    EXPECT_EQ(display_width(""), 0u);
    EXPECT_EQ(display_width("Linden Ferry"), 12u);
    EXPECT_EQ(display_width("Fundación"), 9u);
    EXPECT_EQ(display_width("Fundacio\u0301n"), 9u);
    EXPECT_EQ(display_width("基金会"), 6u);
    EXPECT_EQ(display_width("a\xff"), 2u);
}

TEST(DisplayWidth, OneLineHoldsNoOrderToTheTerminal)
{
    EXPECT_EQ(on_one_line("Cold\r\nstorage\t\x1b[2J"), "Cold  storage  [2J");
    EXPECT_EQ(on_one_line("a\u2028b\u0085c"), "a b c");
    EXPECT_EQ(on_one_line("Fundación “基金会”"), "Fundación “基金会”");
}

} // namespace quillfern::platform
