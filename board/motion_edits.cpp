#include "board/motion_edits.h"

#include "board/board_values.h"
#include "board/motion_numbering.h"
#include "board/references.h"

#include <algorithm>

namespace quillfern::board {
namespace {

using Refused = std::optional<EditRefusal>;

bool is_put_off(MotionStatus status)
{
    return status == MotionStatus::postponed || status == MotionStatus::tabled;
}

Motion* find_motion(Meeting& meeting, const Uuid& id)
{
    const auto found = std::find_if(
        meeting.motions.begin(), meeting.motions.end(), [&](const Motion& motion) { return motion.id == id; });
    return found == meeting.motions.end() ? nullptr : &*found;
}

Refused unknown_reference(const Board& board, const Meeting& meeting, const Motion* before, const Motion& motion)
{
    const auto item = new_reference(before, motion, &Motion::itemID);
    if (item && *item != other_business_id && !item_by_id(meeting, *item))
        return EditRefusal::noSuchItem;
    for (const auto person : {&Motion::moverID, &Motion::seconderID})
        if (const auto member = new_reference(before, motion, person); member && !member_by_id(board, *member))
            return EditRefusal::noSuchMember;
    const auto resumed = new_reference(before, motion, &Motion::resumes);
    if (resumed && !motion_by_id(board, *resumed))
        return EditRefusal::noSuchMotion;
    return {};
}

Refused store(const Board& board, Meeting& meeting, const Motion& motion)
{
    Motion* stored = find_motion(meeting, motion.id);
    if (!stored && motion_by_id(board, motion.id))
        return EditRefusal::idInUse;
    if (const auto refusal = unknown_reference(board, meeting, stored, motion))
        return refusal;
    if (motion.status == MotionStatus::voted && !motion.vote)
        return EditRefusal::voteMissing;
    Motion& kept = stored ? *stored : meeting.motions.emplace_back();
    kept = motion;
    if (kept.vote && kept.status == MotionStatus::pending)
        kept.status = MotionStatus::voted;
    return {};
}

/// The meeting whose minutes the motion is to approve.
const Meeting* approved_by(const Board& board, const Meeting& meeting, const Motion& motion)
{
    const AgendaItem* item = motion.itemID ? item_by_id(meeting, *motion.itemID) : nullptr;
    return item && item->approvesMeetingID ? meeting_by_id(board, *item->approvesMeetingID) : nullptr;
}

MotionSaved with_minutes_approved(Board board, const Uuid& meeting_id, const Uuid& motion_id, const Calendar& calendar)
{
    const Meeting meeting = *meeting_by_id(board, meeting_id);
    const Motion& motion = *motion_by_id(board, motion_id);
    const Meeting* earlier = approved_by(board, meeting, motion);
    if (!earlier)
        return {std::move(board), {}};
    const MinutesApproval approval{meeting.calledToOrder.value_or(meeting.date), motion.number, meeting.id};
    for (Shared<Meeting>& one : board.meetings) {
        if (&*one != earlier)
            continue;
        Meeting changed = one;
        if (!approve(changed.minutes, approval, changed.date, calendar))
            break;
        const Uuid approved = changed.id;
        one = std::move(changed);
        return {std::move(board), approved};
    }
    return {std::move(board), {}};
}

Edited change_motion(
    const Board& board, const Uuid& meeting_id, const Uuid& motion_id, const std::function<Refused(Motion&)>& change)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        Motion* motion = find_motion(meeting, motion_id);
        return motion ? change(*motion) : EditRefusal::noSuchMotion;
    });
}

} // namespace

Motion draft_motion(const Board& board, const Uuid& id, Instant made, const Calendar& calendar)
{
    Motion motion;
    motion.id = id;
    motion.number = MotionNumbering::next_number(board, calendar.date_of(made).year);
    motion.rule = board.voteRule;
    motion.made = made;
    return motion;
}

VoteRecord draft_vote(const Board& board, const Meeting& meeting, VoteMethod method)
{
    VoteRecord vote;
    vote.method = method;
    vote.presentVoting = voting_present_count(board, meeting);
    vote.seats = seat_count(board);
    vote.quorumMet = quorum_status(board, vote.presentVoting).met();
    if (method == VoteMethod::rollCall)
        for (const Member& member : voting_members_present(board, meeting))
            vote.rollCall.push_back({member.id, VoteChoice::aye});
    return vote;
}

MotionResult save_motion(const Board& board, const Uuid& meeting_id, const Motion& motion, const Calendar& calendar)
{
    const Motion* before = motion_by_id(board, motion.id);
    const bool carried_before = before && has_carried(*before);
    Edited stored = change_meeting(board, meeting_id, [&](Meeting& meeting) { return store(board, meeting, motion); });
    if (!stored)
        return fail(stored.error());
    if (carried_before || !has_carried(*motion_by_id(*stored, motion.id)))
        return MotionSaved{std::move(*stored), {}};
    return with_minutes_approved(std::move(*stored), meeting_id, motion.id, calendar);
}

MotionResult record_vote(
    const Board& board, const Uuid& meeting_id, const Uuid& motion_id, const VoteRecord& vote, const Calendar& calendar)
{
    const Meeting* meeting = meeting_of_motion(board, motion_id);
    if (!meeting || meeting->id != meeting_id)
        return fail(EditRefusal::noSuchMotion);
    Motion voted = *motion_by_id(board, motion_id);
    voted.vote = vote;
    voted.status = MotionStatus::voted;
    return save_motion(board, meeting_id, voted, calendar);
}

Edited set_motion_status(const Board& board, const Uuid& meeting_id, const Uuid& motion_id, MotionStatus status)
{
    return change_motion(board, meeting_id, motion_id, [&](Motion& motion) -> Refused {
        if (status == MotionStatus::voted && !motion.vote)
            return EditRefusal::voteMissing;
        if (status == MotionStatus::pending)
            motion.vote.reset();
        motion.status = status;
        return {};
    });
}

Result<TakenUp, EditRefusal> take_up_again(const Board& board, const Uuid& meeting_id, const Uuid& old_motion_id,
    const Uuid& new_id, Instant made, const Calendar& calendar)
{
    const Motion* old = motion_by_id(board, old_motion_id);
    if (!old)
        return fail(EditRefusal::noSuchMotion);
    if (!is_put_off(old->status))
        return fail(EditRefusal::notPutOff);
    if (resumption_of(board, old_motion_id))
        return fail(EditRefusal::alreadyTakenUp);
    Motion motion = draft_motion(board, new_id, made, calendar);
    motion.text = old->text;
    motion.rule = old->rule;
    motion.needsSecond = old->needsSecond;
    motion.resumes = old_motion_id;
    Edited after = change_meeting(board, meeting_id, [&](Meeting& meeting) {
        for (const AgendaItem& item : meeting.agenda)
            if (item.carriedMotionID == old_motion_id)
                motion.itemID = item.id;
        return store(board, meeting, motion);
    });
    if (!after)
        return fail(after.error());
    return TakenUp{std::move(*after), new_id};
}

Edited remove_motion(const Board& board, const Uuid& meeting_id, const Uuid& motion_id)
{
    Edited remaining = change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        const auto removed =
            std::erase_if(meeting.motions, [&](const Motion& motion) { return motion.id == motion_id; });
        return removed ? Refused() : EditRefusal::noSuchMotion;
    });
    if (!remaining)
        return remaining;
    Leaving leaving;
    leaving.motions.insert(motion_id);
    return without_references(*remaining, leaving);
}

} // namespace quillfern::board
