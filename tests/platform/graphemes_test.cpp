#include "platform/graphemes.h"

#include <gtest/gtest.h>

#include <string_view>

namespace quillfern::platform {
namespace {

TEST(Graphemes, AnAsciiCharacterIsJoinedByMarksAfterItAndPrependersBeforeIt)
{
    struct Case {
        std::string_view text;
        std::size_t position;
        bool joined;
    };
    for (const Case& at : {
             Case{",", 0, false},
             Case{"a,b", 1, false},
             Case{"a,\u0301b", 1, true}, // combining acute
             Case{"a,\u0903", 1, true}, // a spacing mark
             Case{"a,\u200D", 1, true}, // zero-width joiner
             Case{"a,\U000E0100", 1, true}, // a variation selector beyond the basic plane
             Case{"a,é", 1, false},
             Case{"é,", 2, false},
             Case{"\u0600,", 2, true}, // Arabic number sign
             Case{"\U000110BD,", 4, true}, // Kaithi number sign
             Case{"e\u0301,", 3, false}, // the mark belongs to the e
             Case{",\xCC", 0, false}, // half a mark
             Case{"\x80\x80\x80\x80\x80,", 5, false},
         })
        EXPECT_EQ(is_joined(at.text, at.position), at.joined) << at.text << " at " << at.position;
}

} // namespace
} // namespace quillfern::platform
