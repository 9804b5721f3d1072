#include "grants/carriage_returns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

TEST(CarriageReturns, AreFoundInEveryTextOfAFile)
{
    Grant grant;
    grant.title = "Storage\n";
    grant.notes = "a\r\nb";
    grant.payments.emplace_back().note = "c\r";
    GrantFile file;
    file.org.mission = "\r";
    file.grants = {Grant(), grant};
    file.board = RawJson{R"({"meetings": [{"place": "x\ry", "level": {"deep": "\\r"}}]})"};
    EXPECT_THAT(texts_with_carriage_returns(file),
        testing::ElementsAre("board.meetings[0].place: the text holds a carriage return",
            "grants[1].notes: the text holds a carriage return",
            "grants[1].payments[0].note: the text holds a carriage return",
            "org.mission: the text holds a carriage return"));
}

} // namespace
} // namespace quillfern::grants
