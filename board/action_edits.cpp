#include "board/action_edits.h"

#include "board/board_values.h"
#include "board/references.h"

#include <algorithm>

namespace quillfern::board {
namespace {

using Refused = std::optional<EditRefusal>;

bool is_of_locked_meeting(const Board& board, const ActionItem& action)
{
    const Meeting* meeting = action.meetingID ? meeting_by_id(board, *action.meetingID) : nullptr;
    return meeting && is_locked(*meeting);
}

bool same_in_minutes(const ActionItem& a, const ActionItem& b)
{
    return a.title == b.title && a.meetingID == b.meetingID && a.motionID == b.motionID;
}

Refused unknown_reference(const Board& board, const ActionItem* before, const ActionItem& action)
{
    const auto owner = new_reference(before, action, &ActionItem::ownerID);
    const auto meeting = new_reference(before, action, &ActionItem::meetingID);
    const auto motion = new_reference(before, action, &ActionItem::motionID);
    if (owner && !member_by_id(board, *owner))
        return EditRefusal::noSuchMember;
    if (meeting && !meeting_by_id(board, *meeting))
        return EditRefusal::noSuchMeeting;
    if (motion && !motion_by_id(board, *motion))
        return EditRefusal::noSuchMotion;
    return {};
}

Refused locked_change(const Board& board, const ActionItem* before, const ActionItem& after)
{
    if (before && same_in_minutes(*before, after))
        return {};
    if (is_of_locked_meeting(board, after) || (before && is_of_locked_meeting(board, *before)))
        return EditRefusal::minutesApproved;
    return {};
}

} // namespace

Edited save_action(const Board& board, const ActionItem& action)
{
    const ActionItem* before = action_by_id(board, action.id);
    if (const auto refusal = unknown_reference(board, before, action))
        return fail(*refusal);
    if (const auto refusal = locked_change(board, before, action))
        return fail(*refusal);
    Board after = board;
    const auto stored = std::find_if(
        after.actions.begin(), after.actions.end(), [&](const ActionItem& one) { return one.id == action.id; });
    if (stored == after.actions.end())
        after.actions.push_back(action);
    else
        *stored = action;
    return after;
}

Edited set_action_status(const Board& board, const Uuid& action_id, ActionStatus status, Instant now)
{
    const ActionItem* action = action_by_id(board, action_id);
    if (!action)
        return fail(EditRefusal::noSuchAction);
    ActionItem changed = *action;
    changed.status = status;
    if (status != ActionStatus::done)
        changed.completed.reset();
    else if (action->status != ActionStatus::done || !action->completed)
        changed.completed = now;
    return save_action(board, changed);
}

Edited remove_action(const Board& board, const Uuid& action_id)
{
    const ActionItem* action = action_by_id(board, action_id);
    if (!action)
        return fail(EditRefusal::noSuchAction);
    if (is_of_locked_meeting(board, *action))
        return fail(EditRefusal::minutesApproved);
    Board remaining = board;
    std::erase_if(remaining.actions, [&](const ActionItem& one) { return one.id == action_id; });
    Leaving leaving;
    leaving.actions.insert(action_id);
    return without_references(remaining, leaving);
}

} // namespace quillfern::board
