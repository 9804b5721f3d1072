#include "base/line_endings.h"

#include <gtest/gtest.h>

namespace quillfern {
namespace {

TEST(LineEndings, BecomeOneLineFeedEach)
{
    EXPECT_EQ(with_line_feeds("a\r\nb\rc\nd"), "a\nb\nc\nd");
    EXPECT_EQ(with_line_feeds("\r\r\n\n\r"), "\n\n\n\n");
    EXPECT_EQ(with_line_feeds("none"), "none");
    EXPECT_EQ(with_line_feeds(""), "");
}

} // namespace
} // namespace quillfern
