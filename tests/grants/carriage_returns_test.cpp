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
    board::Meeting meeting;
    meeting.location = "x\ry";
    meeting.notes = "\\r";
    board::Board board;
    board.meetings.push_back(meeting);
    file.board = board;
    EXPECT_THAT(texts_with_carriage_returns(file),
        testing::ElementsAre("board.meetings[0].location: the text holds a carriage return",
            "grants[1].notes: the text holds a carriage return",
            "grants[1].payments[0].note: the text holds a carriage return",
            "org.mission: the text holds a carriage return"));
}

} // namespace
} // namespace quillfern::grants
