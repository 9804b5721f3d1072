#include "base/trim.h"

#include <gtest/gtest.h>

namespace quillfern {
namespace {

TEST(Trim, TakesWhiteSpaceOfAnyScriptFromTheEndsOnly)
{
    EXPECT_EQ(trimmed(" \t\r\n2024 3\v\f "), "2024 3");
    EXPECT_EQ(trimmed("\u00A0\u202F\u3000é \u2009é\u2028\u0085"), "é \u2009é");
    EXPECT_EQ(trimmed(" \u00A0 "), "");
    EXPECT_EQ(trimmed("\u200B"), "\u200B") << "a zero-width space is no white space";
    EXPECT_EQ(trimmed("\xA0x\x85"), "\xA0x\x85") << "half a character is left alone";
}

} // namespace
} // namespace quillfern
