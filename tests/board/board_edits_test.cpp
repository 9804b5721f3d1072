#include "board/action_edits.h"
#include "board/agenda_edits.h"
#include "board/board_values.h"
#include "board/meeting_edits.h"
#include "board/member_edits.h"
#include "board/minutes_edits.h"
#include "board/motion_edits.h"
#include "board/planning.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;
using testing::ElementsAre;

namespace {

const Calendar utc = Calendar::with_offset(0);

Uuid id(std::uint8_t number)
{
    Uuid uuid;
    uuid.bytes[0] = number;
    return uuid;
}

NewId ids_from(std::uint8_t number)
{
    return [next = number]() mutable { return id(next++); };
}

Instant on(std::string_view day)
{
    return *Instant::parse(std::string(day) + "T18:30:00Z");
}

MeetingPlan plan_for(std::string_view day, MeetingKind kind = MeetingKind::regular, std::string purpose = {})
{
    MeetingPlan plan;
    plan.kind = kind;
    plan.date = on(day);
    plan.purpose = std::move(purpose);
    return plan;
}

const Uuid ann = id(1), ben = id(2), cleo = id(3), june = id(10), july = id(11), policy = id(20), quotes = id(30);

/// Three members; a meeting in June with a tabled motion and an open action item, and one planned in July.
Board example_board()
{
    Board board;
    board.members = {Member::with_role(ann, "Ann", Role::president), Member::with_role(ben, "Ben", Role::secretary),
        Member::with_role(cleo, "Cleo", Role::director)};
    board = plan_meeting(board, plan_for("2026-06-23"), ids_from(10), utc, Lang::en).board;
    board.meetings[0] = board.meetings[0].with([](Meeting& meeting) {
        meeting.agenda.clear();
        Motion motion;
        motion.id = policy;
        motion.number = "2026-001";
        motion.text = "To adopt the policy.";
        motion.moverID = cleo;
        motion.rule = {Threshold::twoThirds, VoteBasis::present};
        motion.status = MotionStatus::tabled;
        meeting.motions = {motion};
    });
    ActionItem action;
    action.id = quotes;
    action.title = "Get quotes";
    action.ownerID = cleo;
    action.meetingID = june;
    action.motionID = policy;
    board.actions = {action};
    return plan_meeting(board, plan_for("2026-07-28"), ids_from(11), utc, Lang::en).board;
}

const Meeting& meeting(const Board& board, const Uuid& meeting_id)
{
    return *meeting_by_id(board, meeting_id);
}

std::vector<std::string> titles(const Meeting& of)
{
    std::vector<std::string> all;
    for (const AgendaItem& item : of.agenda)
        all.push_back(item.title);
    return all;
}

const AgendaItem& item_titled(const Meeting& of, std::string_view title)
{
    return *std::find_if(
        of.agenda.begin(), of.agenda.end(), [&](const AgendaItem& item) { return item.title == title; });
}

VoteRecord ayes(std::int64_t count)
{
    VoteRecord vote;
    vote.ayes = count;
    return vote;
}

/// The board after July carried the motion to approve June's minutes.
Board with_june_approved()
{
    const Board board = example_board();
    Motion motion = draft_motion(board, id(40), on("2026-07-28"), utc);
    motion.itemID = item_titled(meeting(board, july), "Approve the minutes of June 23, 2026").id;
    motion.vote = ayes(3);
    return save_motion(board, july, motion, utc)->board;
}

} // namespace

TEST(Planning, CarriesWhatEarlierMeetingsLeftOver)
{
    const Board board = example_board();
    EXPECT_THAT(titles(meeting(board, july)),
        ElementsAre("Call to order and welcome", "Approve the minutes of June 23, 2026", "Treasurer’s report",
            "Officer and committee reports", "To adopt the policy.", "Get quotes", "Comments and questions",
            "Next meeting, adjournment"));
    EXPECT_EQ(meeting(board, july).presidingID, ann);
    EXPECT_EQ(meeting(board, july).recorderID, ben);
    EXPECT_EQ(item_titled(meeting(board, july), "To adopt the policy.").carriedMotionID, policy);
    EXPECT_EQ(carry_forward(board, july, ids_from(90), utc, Lang::en).value(), board); // nothing twice

    const auto special = plan_meeting(
        board, plan_for("2026-07-30", MeetingKind::special, " Buy the van "), ids_from(100), utc, Lang::es);
    EXPECT_THAT(titles(meeting(special.board, special.meeting)),
        ElementsAre("Apertura y bienvenida", "Buy the van", "Próxima sesión y cierre"));

    // Taken up again or done, nothing is left but the minutes; an earlier meeting inherits nothing of a later one.
    Board settled = take_up_again(board, july, policy, id(41), on("2026-07-28"), utc)->board;
    settled = *set_action_status(settled, quotes, ActionStatus::done, on("2026-07-28"));
    const auto august = plan_meeting(settled, plan_for("2026-08-25"), ids_from(120), utc, Lang::en);
    EXPECT_EQ(titles(meeting(august.board, august.meeting)).size(), 7u);
    const auto may = plan_meeting(board, plan_for("2026-05-01"), ids_from(140), utc, Lang::en);
    EXPECT_EQ(titles(meeting(may.board, may.meeting)).size(), 5u);
}

TEST(Meetings, AreCalledToOrderAndAdjournedOnceInThatOrder)
{
    const Board planned = example_board();
    EXPECT_EQ(adjourn(planned, july, on("2026-07-28")).error(), EditRefusal::notCalledToOrder);
    const Board started = *call_to_order(planned, july, on("2026-07-28"));
    EXPECT_EQ(call_to_order(started, july, on("2026-07-29")).error(), EditRefusal::alreadyCalledToOrder);
    EXPECT_EQ(adjourn(started, july, on("2026-07-27")).error(), EditRefusal::endsBeforeItStarts);
    const Board ended = *adjourn(started, july, on("2026-07-28"));
    EXPECT_EQ(adjourn(ended, july, on("2026-07-28")).error(), EditRefusal::alreadyAdjourned);
    EXPECT_EQ(adjourn(ended, id(99), on("2026-07-28")).error(), EditRefusal::noSuchMeeting);
}

TEST(Attendance, IsOneMarkAMember)
{
    Board board = *mark_everyone_present(example_board(), july);
    board = *mark_attendance(board, july, ben, AttendanceStatus::leftEarly);
    EXPECT_EQ(voting_present_count(board, meeting(board, july)), 2);
    board = *mark_attendance(board, july, ben, std::nullopt);
    EXPECT_EQ(attendance_of(meeting(board, july), ben), std::nullopt);
    EXPECT_EQ(meeting(board, july).attendance.size(), 2u);
    EXPECT_EQ(mark_attendance(board, july, id(99), AttendanceStatus::present).error(), EditRefusal::noSuchMember);
    EXPECT_TRUE(meeting(*clear_attendance(board, july), july).attendance.empty());
}

TEST(AgendaItems, MoveWithinAndAcrossSections)
{
    Board board = example_board();
    const Uuid quotes_item = item_titled(meeting(board, july), "Get quotes").id;
    const auto place_of = [&] {
        const std::vector<std::string> all = titles(meeting(board, july));
        return std::find(all.begin(), all.end(), "Get quotes") - all.begin();
    };
    board = *move_item(board, july, quotes_item, Direction::up);
    EXPECT_EQ(place_of(), 4);
    board = *move_item(board, july, quotes_item, Direction::up); // into Reports, in place
    EXPECT_EQ(place_of(), 4);
    EXPECT_EQ(item_titled(meeting(board, july), "Get quotes").section, AgendaSection::reports);
    board = *place_item(board, july, quotes_item, AgendaSection::closing, 99);
    EXPECT_EQ(place_of(), 7);
    EXPECT_EQ(*move_item(board, july, quotes_item, Direction::down), board);
    board = *place_item(board, july, quotes_item, AgendaSection::opening, 0);
    EXPECT_EQ(place_of(), 0);
    EXPECT_EQ(*move_item(board, july, quotes_item, Direction::up), board);
    EXPECT_EQ(move_item(board, july, other_business_id, Direction::up).error(), EditRefusal::noSuchItem);
}

TEST(Motions, TakeUpATabledOneOnceWithItsWordsAndRule)
{
    const Board board = example_board();
    const Board after = take_up_again(board, july, policy, id(41), on("2026-07-28"), utc)->board;
    const Motion& resumed = *motion_by_id(after, id(41));
    EXPECT_EQ(resumed.number, "2026-002");
    EXPECT_EQ(resumed.text, "To adopt the policy.");
    EXPECT_EQ(resumed.rule, (VoteRule{Threshold::twoThirds, VoteBasis::present}));
    EXPECT_EQ(resumed.itemID, item_titled(meeting(board, july), "To adopt the policy.").id);
    EXPECT_EQ(resumption_of(after, policy)->id, id(41));
    EXPECT_EQ(take_up_again(after, july, policy, id(42), on("2026-07-28"), utc).error(), EditRefusal::alreadyTakenUp);
    EXPECT_EQ(take_up_again(after, july, id(41), id(42), on("2026-07-28"), utc).error(), EditRefusal::notPutOff);
}

TEST(Motions, ApproveEarlierMinutesWhenTheyComeToCarry)
{
    const Board board = example_board();
    Motion motion = draft_motion(board, id(40), on("2026-07-28"), utc);
    motion.itemID = item_titled(meeting(board, july), "Approve the minutes of June 23, 2026").id;
    const Board moved = save_motion(board, july, motion, utc)->board;

    VoteRecord nays;
    nays.nays = 3;
    const MotionSaved failed = *record_vote(moved, july, id(40), nays, utc);
    EXPECT_FALSE(failed.approvedMeeting.has_value());
    EXPECT_FALSE(is_locked(meeting(failed.board, june)));

    const MotionSaved carried = *record_vote(failed.board, july, id(40), ayes(3), utc);
    EXPECT_EQ(carried.approvedMeeting, june);
    EXPECT_EQ(meeting(carried.board, june).minutes.approvalReference, "2026-002");
    EXPECT_EQ(meeting(carried.board, june).minutes.approvedAtMeetingID, july);
    EXPECT_EQ(approving_motions(carried.board, june).size(), 1u);

    // Once reopened, the minutes are not approved again by a later touch of the same motion.
    const Board reopened = *reopen_minutes(carried.board, june, on("2026-08-01"), "a name");
    Motion noted = *motion_by_id(reopened, id(40));
    noted.note = "as corrected";
    EXPECT_FALSE(save_motion(reopened, july, noted, utc)->approvedMeeting.has_value());
}

TEST(ApprovedMinutes, LockEverythingOfTheirMeeting)
{
    const Board board = with_june_approved();
    ASSERT_TRUE(is_locked(meeting(board, june)));
    AgendaItem item;
    item.id = id(50);
    ActionItem retitled = board.actions[0], added;
    retitled.title = "Other";
    added.id = id(51);
    added.meetingID = june;
    const EditRefusal refusals[] = {
        edit_details(board, june, {}).error(), call_to_order(board, june, on("2026-06-23")).error(),
        adjourn(board, june, on("2026-06-23")).error(),
        mark_attendance(board, june, ann, AttendanceStatus::absent).error(), mark_everyone_present(board, june).error(),
        clear_attendance(board, june).error(), set_guests(board, june, "x").error(),
        set_notes(board, june, other_business_id, "x").error(), add_item(board, june, item).error(),
        carry_forward(board, june, ids_from(60), utc, Lang::en).error(),
        save_motion(board, june, draft_motion(board, id(52), on("2026-06-23"), utc), utc).error(),
        record_vote(board, june, policy, ayes(1), utc).error(),
        set_motion_status(board, june, policy, MotionStatus::withdrawn).error(),
        take_up_again(board, june, policy, id(53), on("2026-06-23"), utc).error(),
        remove_motion(board, june, policy).error(), remove_meeting(board, june).error(),
        save_action(board, retitled).error(), save_action(board, added).error(), remove_action(board, quotes).error(),
        remove_member(board, cleo).error(), // who moved a motion there
        remove_meeting(board, july).error(), // which approved the minutes
    };
    for (std::size_t i = 0; i < std::size(refusals); ++i)
        EXPECT_EQ(refusals[i], EditRefusal::minutesApproved) << i;
    // What becomes of an action item is recorded all the same.
    EXPECT_EQ(
        set_action_status(board, quotes, ActionStatus::done, on("2026-08-01"))->actions[0].completed, on("2026-08-01"));
    EXPECT_TRUE(set_guests(*reopen_minutes(board, june, on("2026-08-01"), "guests"), june, "x").ok());
}

TEST(Removing, ClearsWhatPointedAtTheRecord)
{
    const Board board = example_board();
    const Board without_motion = *remove_motion(board, june, policy);
    EXPECT_FALSE(item_titled(meeting(without_motion, july), "To adopt the policy.").carriedMotionID.has_value());
    EXPECT_FALSE(without_motion.actions[0].motionID.has_value());

    const Board without_june = *remove_meeting(board, june);
    EXPECT_FALSE(without_june.actions[0].meetingID || without_june.actions[0].motionID);
    const AgendaItem& minutes_item = item_titled(meeting(without_june, july), "Approve the minutes of June 23, 2026");
    EXPECT_FALSE(minutes_item.approvesMeetingID.has_value());

    EXPECT_FALSE(item_titled(meeting(*remove_action(board, quotes), july), "Get quotes").carriedActionID.has_value());

    const Board without_cleo = *remove_member(*mark_everyone_present(board, july), cleo);
    EXPECT_EQ(motion_by_id(without_cleo, policy)->moverName, "Cleo");
    EXPECT_EQ(without_cleo.actions[0].ownerName, "Cleo");
    EXPECT_FALSE(motion_by_id(without_cleo, policy)->moverID || without_cleo.actions[0].ownerID);
    EXPECT_EQ(meeting(without_cleo, july).attendance.size(), 2u);

    Motion under_item = draft_motion(board, id(40), on("2026-07-28"), utc);
    under_item.itemID = meeting(board, july).agenda[0].id;
    const Board moved = save_motion(board, july, under_item, utc)->board;
    EXPECT_FALSE(motion_by_id(*remove_item(moved, july, *under_item.itemID), id(40))->itemID.has_value());

    const VoteRecord roll = draft_vote(
        *mark_everyone_present(moved, july), meeting(*mark_everyone_present(moved, july), july), VoteMethod::rollCall);
    const Board voted = record_vote(moved, july, id(40), roll, utc)->board;
    EXPECT_EQ(remove_member(voted, ann).error(), EditRefusal::memberVoted);
}

TEST(Edits, RefuseNewDanglingReferencesButLeaveOldOnesAlone)
{
    Board board = example_board();
    ActionItem stray = board.actions[0];
    stray.ownerID = id(99);
    EXPECT_EQ(save_action(board, stray).error(), EditRefusal::noSuchMember);
    board.actions[0] = stray; // as a damaged file may hold it
    stray.title = "Renamed";
    EXPECT_TRUE(save_action(board, stray).ok());
    Motion motion = *motion_by_id(board, policy);
    motion.status = MotionStatus::voted;
    EXPECT_EQ(save_motion(board, june, motion, utc).error(), EditRefusal::voteMissing);
    EXPECT_EQ(save_motion(board, july, motion, utc).error(), EditRefusal::idInUse);
}
