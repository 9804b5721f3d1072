#include "board/board_json.h"
#include "board/board_values.h"
#include "board/motion_numbering.h"
#include "board/sample_board.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace quillfern;
using namespace quillfern::board;

namespace {

constexpr std::int64_t story_day = days_from_civil(2026, 9, 10);
constexpr SampleBoard all[] = {SampleBoard::nonprofit, SampleBoard::homeowners, SampleBoard::club};
const Calendar local = Calendar::with_offset(-240);

template <class Test>
bool any_motion(const Board& board, Test&& test)
{
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            if (test(motion))
                return true;
    return false;
}

bool any_meeting(const Board& board, const std::function<bool(const Meeting&)>& test)
{
    return std::any_of(
        board.meetings.begin(), board.meetings.end(), [&](const Shared<Meeting>& one) { return test(*one); });
}

} // namespace

TEST(SampleBoards, TellTheStoryOfTheOrganization)
{
    const Board board = sample_board(SampleBoard::nonprofit, story_day, Lang::en, local);
    EXPECT_TRUE(board.sample);
    EXPECT_EQ(quorum_status(board, 7), (QuorumStatus{7, 5, 9}));
    EXPECT_EQ(MotionNumbering::next_number(board, 2026), "2026-018");
    std::vector<std::pair<std::int64_t, std::size_t>> held; // voting members present, motions
    for (const Shared<Meeting>& meeting : board.meetings)
        held.emplace_back(voting_present_count(board, meeting), meeting->motions.size());
    EXPECT_EQ(held,
        (std::vector<std::pair<std::int64_t, std::size_t>>{
            {9, 1}, {7, 2}, {7, 1}, {6, 1}, {8, 3}, {9, 4}, {7, 2}, {8, 3}, {0, 0}}));
    EXPECT_EQ(motion_by_id(board, sample_motion_id(SampleBoard::nonprofit, 3))->number, "2026-003");
    EXPECT_EQ(board.meetings[8]->date.text(), "2026-09-22T22:30:00.000Z");
    EXPECT_EQ(item_by_id(board.meetings[8], sample_grant_item_id())->title, "Refrigerated Van application");
    EXPECT_EQ(motion_by_id(board, sample_motion_id(SampleBoard::nonprofit, 15))->text,
        "To approve the minutes of the July 28, 2026 regular meeting as distributed.");
}

TEST(SampleBoards, ShowEveryKindOfDecisionInBothLanguages)
{
    std::set<MinutesState> states;
    for (const SampleBoard which : all)
        for (const Lang lang : {Lang::en, Lang::es}) {
            const Board board = sample_board(which, story_day + 200, lang, local);
            const auto has = [&](auto&& test) { return any_motion(board, test); };
            EXPECT_TRUE(has([](const Motion& motion) { return has_carried(motion); }));
            EXPECT_TRUE(has([](const Motion& motion) { return motion.vote && !has_carried(motion); }));
            EXPECT_TRUE(has([](const Motion& motion) { return motion.vote && !motion.vote->quorumMet; }));
            EXPECT_TRUE(
                has([](const Motion& motion) { return motion.vote && motion.vote->method == VoteMethod::rollCall; }));
            EXPECT_TRUE(has([](const Motion& motion) {
                return motion.vote && motion.vote->method == VoteMethod::generalConsent && has_carried(motion);
            }));
            EXPECT_TRUE(has([&](const Motion& motion) {
                return motion.resumes && motion_by_id(board, *motion.resumes) && motion.vote;
            }));
            for (const Shared<Meeting>& meeting : board.meetings)
                states.insert(meeting->minutes.state);
            const bool reopened = any_meeting(board, [](const Meeting& meeting) {
                return std::any_of(meeting.minutes.history.begin(), meeting.minutes.history.end(),
                    [](const MinutesEvent& event) { return event.from == MinutesState::approved; });
            });
            EXPECT_EQ(reopened, which != SampleBoard::nonprofit);
            EXPECT_TRUE(any_meeting(
                board, [&](const Meeting& meeting) { return local.day_number(meeting.date) > story_day + 200; }));
        }
    EXPECT_EQ(states.size(), 3u);
}

TEST(SampleBoards, AreTheSameForTheSameDayAndSurviveTheirFile)
{
    for (const SampleBoard which : all) {
        const Board board = sample_board(which, story_day, Lang::es, local);
        EXPECT_EQ(board, sample_board(which, story_day, Lang::es, local));
        const auto again = read_board(write_board(board), {[] { return Uuid{}; }, {}});
        ASSERT_TRUE(again.ok());
        EXPECT_EQ(again->board, board);
        EXPECT_TRUE(again->notes.empty());
    }
}
