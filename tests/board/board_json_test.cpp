#include "board/board_json.h"
#include "board/board_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const Instant reading_moment{1'788'000'000'000};

BoardRead read(const std::string& json)
{
    std::uint8_t next = 0;
    const FreshValues fresh{[&] {
                                Uuid uuid;
                                uuid.bytes[0] = 0xFF;
                                uuid.bytes[15] = ++next;
                                return uuid;
                            },
        reading_moment};
    auto result = read_board(json, fresh);
    EXPECT_TRUE(result.ok()) << (result ? "" : result.error().text());
    return result ? *result : BoardRead{};
}

std::string refusal(const std::string& json)
{
    const auto result = read_board(json, {[] { return Uuid{}; }, {}});
    return result ? "accepted" : result.error().text();
}

Meeting read_meeting(const std::string& members)
{
    const Board board = read(R"({"meetings": [{)" + members + "}]}").board;
    return board.meetings.size() == 1 ? *board.meetings[0] : Meeting{};
}

const std::string one = "\"10000000-0000-4000-8000-000000000001\"";
const std::string two = "\"20000000-0000-4000-8000-000000000002\"";

} // namespace

TEST(BoardFile, ReadsAnEmptyObjectAsANewBoard)
{
    const BoardRead empty = read("{}");
    Board expected;
    expected.id = empty.board.id;
    expected.created = reading_moment;
    EXPECT_EQ(empty.board, expected);
    EXPECT_EQ(empty.board.id.bytes[0], 0xFF);
    EXPECT_EQ(empty.board.defaultStartMinutes, 1140);
    EXPECT_THAT(empty.notes, ElementsAre());
}

TEST(BoardFile, ReplacesWhatItCannotReadKeyByKeyAndTells)
{
    const BoardRead odd = read(R"({"orgType": "cooperative", "defaultLengthMinutes": "60", "name": "Elm Court",
        "quorum": {"majority": {}, "fixed": {"_0": 3}}, "seats": "nine", "sample": 1, "created": "yesterday",
        "voteRule": {"threshold": "twoThirds"}, "members": {}, "id": "x", "unknown": [[[{}]]]})");
    Board expected;
    expected.id = odd.board.id;
    expected.name = "Elm Court";
    expected.created = reading_moment;
    EXPECT_EQ(odd.board, expected);
    EXPECT_EQ(odd.notes.size(), 9u);
    EXPECT_THAT(odd.notes[0], HasSubstr("orgType: Unknown value: cooperative"));
    EXPECT_THAT(odd.notes[2], HasSubstr("Invalid number of keys found, expected one."));
}

TEST(BoardFile, ReadsEachQuorumRule)
{
    EXPECT_EQ(read(R"({"quorum": {"fraction": {"numerator": 1, "denominator": 3}}})").board.quorum,
        QuorumRule(FractionQuorum{1, 3}));
    EXPECT_EQ(read(R"({"quorum": {"fixed": {"_0": 4}}})").board.quorum, QuorumRule(FixedQuorum{4}));
    for (const char* unreadable : {R"({})", R"({"fixed": {}})", R"({"fixed": 4})", R"("majority")", R"({"most": {}})"})
        EXPECT_EQ(read(R"({"quorum": )" + std::string(unreadable) + "}").board.quorum, QuorumRule(MajorityQuorum{}));
}

TEST(BoardFile, GivesAMemberTheVoteOfTheRole)
{
    const Board board = read(R"({"members": [{"id": )" + one + R"(, "role": "staff"}, {"id": )" + two
        + R"(, "role": "treasurer", "votes": "no"}]})")
                            .board;
    ASSERT_EQ(board.members.size(), 2u);
    EXPECT_FALSE(board.members[0].votes);
    EXPECT_TRUE(board.members[0].inOffice);
    EXPECT_TRUE(board.members[1].votes);
}

TEST(BoardFile, IsRefusedInWordsWhenItIsNoBoard)
{
    EXPECT_THAT(refusal("[{}]"), HasSubstr("Expected an object"));
    EXPECT_THAT(refusal("17"), HasSubstr("Expected an object"));
    EXPECT_THAT(refusal(std::string(200, '[') + std::string(200, ']')), HasSubstr("Expected an object"));
    EXPECT_THAT(refusal(R"({"name": "a" "b"})"), HasSubstr("Malformed JSON"));
    EXPECT_THAT(refusal(R"({"members": [{"name": "Ann"}]})"), HasSubstr("members[0].id"));
    EXPECT_THAT(refusal(R"({"members": [{"id": "7"}]})"), HasSubstr("Not a UUID: 7"));
    EXPECT_THAT(refusal(R"({"members": [null]})"), HasSubstr("members[0]: Expected an object"));
    std::string deep;
    for (int level = 0; level < 200; ++level)
        deep += R"({"members":)";
    EXPECT_EQ(refusal(deep + "1" + std::string(200, '}')), "accepted"); // a member list of the wrong kind, told
}

TEST(BoardFile, LosesNoMeetingToABadRecordInIt)
{
    const Meeting meeting =
        read_meeting(R"("kind": 5, "date": "2026-08-25T18:30:00Z", "agenda": [7, {"title": "Budget"}],
        "attendance": [{"memberID": )"
            + one + R"(, "status": "asleep"}, {"memberID": )" + two
            + R"(, "status": "remote"}], "minutes": {"state": "lost", "history": [{}, 3]},
        "motions": [{"text": "To adopt", "rule": {"threshold": "twoThirds", "basis": "most"}, "status": "voted",
        "vote": {"ayes": 5, "nays": "2", "rollCall": [{"memberID": )"
            + one + R"(, "choice": "aye"}, {}]}}, []])");
    EXPECT_EQ(meeting.kind, MeetingKind::regular);
    ASSERT_EQ(meeting.agenda.size(), 1u);
    EXPECT_EQ(meeting.agenda[0].title, "Budget");
    EXPECT_EQ(meeting.agenda[0].id.bytes[0], 0xFF);
    ASSERT_EQ(meeting.attendance.size(), 1u);
    EXPECT_EQ(meeting.attendance[0].status, AttendanceStatus::remote);
    EXPECT_EQ(meeting.minutes.state, MinutesState::draft);
    EXPECT_EQ(meeting.minutes.history.size(), 1u);
    ASSERT_EQ(meeting.motions.size(), 1u);
    const Motion& motion = meeting.motions[0];
    EXPECT_EQ(motion.rule, VoteRule{});
    EXPECT_TRUE(motion.needsSecond);
    EXPECT_EQ(motion.made, reading_moment);
    EXPECT_EQ(motion.vote->ayes, 5);
    EXPECT_EQ(motion.vote->nays, 0);
    EXPECT_TRUE(motion.vote->rollCall.empty());
    EXPECT_TRUE(motion.vote->quorumMet);
    EXPECT_EQ(read_meeting(R"("minutes": {}, "motions": [{"vote": null}])").minutes, MinutesRecord{});
}

TEST(BoardFile, KeepsRecordsOfOneIdApart)
{
    const std::string twice = R"([{"id": )" + one + R"(, "title": "first"}, {"id": )" + one + R"(, "title": "later"}])";
    const BoardRead both = read(R"({"actions": )" + twice + R"(, "members": )" + twice + R"(,
        "meetings": [{"id": )"
        + one + R"(, "agenda": )" + twice + R"(, "motions": )" + twice + R"(},
        {"id": )"
        + one + R"(, "motions": [{"id": )" + one + R"(}]}]})");
    const Board& board = both.board;
    EXPECT_EQ(both.notes.size(), 6u);
    EXPECT_THAT(both.notes, testing::Contains(HasSubstr("meetings[1].motions[0]: The identifier 10000000-")));
    EXPECT_EQ(action_by_id(board, *Uuid::parse("10000000-0000-4000-8000-000000000001"))->title, "first");
    std::vector<Uuid> motions;
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            motions.push_back(motion.id);
    std::sort(motions.begin(), motions.end());
    EXPECT_EQ(std::unique(motions.begin(), motions.end()) - motions.begin(), 3);
    EXPECT_NE(board.meetings[0]->id, board.meetings[1]->id);
    EXPECT_NE(board.members[0].id, board.members[1].id);
    EXPECT_NE(board.meetings[0]->agenda[0].id, board.meetings[0]->agenda[1].id);
}

TEST(BoardFile, IsWrittenInTheCurrentFormatAndReadBackEqual)
{
    const std::string stored = R"({"formatVersion": 0, "quorum": {"fraction": {"numerator": 1, "denominator": 3}},
        "seats": 9, "name": "A/B \"é\"", "meetings": [{"id": )"
        + one + R"(, "motions": [{"vote": {"method": "rollCall"}}]}]})";
    Board board = read(stored).board;
    EXPECT_EQ(board.formatVersion, 0);
    const std::string text = write_board(board);
    board.formatVersion = 1;
    const BoardRead again = read(text);
    EXPECT_EQ(again.board, board);
    EXPECT_THAT(again.notes, ElementsAre());
    EXPECT_EQ(write_board(again.board), text);
    EXPECT_THAT(text, HasSubstr("\"name\": \"A/B \\\"é\\\"\""));
    EXPECT_LT(text.find("\"actions\""), text.find("\"voteRule\""));
    board.seats.reset();
    EXPECT_EQ(write_board(board).find("\"seats\": 9"), std::string::npos);
}
