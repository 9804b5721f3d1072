#include "platform/search_text.h"

#include <gtest/gtest.h>

namespace quillfern::platform {
namespace {

TEST(SearchText, CaseAccentsAndFormsMakeNoDifference)
{
    struct Case {
        const char* text;
        const char* same_as;
    };
    const Case cases[] = {
        {"Mobile PANTRY", "mobile pantry"},
        {"José Núñez", "jose nunez"},
        {"Jose\u0301", "JOSÉ"}, // a combining accent
        {"Straße", "STRASSE"},
        {"ﬁnance", "finance"}, // a ligature
        {"２０２７", "2027"}, // full-width figures
        {"İzmir", "izmir"},
        {"Ωmega", "ωMEGA"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(search_fold(c.text), search_fold(c.same_as)) << c.text;
    EXPECT_NE(search_fold("pantry"), search_fold("pastry"));
    EXPECT_EQ(search_fold(""), "");
}

} // namespace
} // namespace quillfern::platform
