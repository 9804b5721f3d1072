#include "board/references.h"

#include "board/board_values.h"

namespace quillfern::board {
namespace {

using Ids = std::set<Uuid>;

void clear(std::optional<Uuid>& reference, const Ids& leaving)
{
    if (reference && leaving.contains(*reference))
        reference.reset();
}

void clear_keeping_name(std::optional<Uuid>& reference, std::string& name, const Ids& leaving, const Board& board)
{
    if (!reference || !leaving.contains(*reference))
        return;
    const Member* member = member_by_id(board, *reference);
    if (member && name.empty())
        name = member->name;
    reference.reset();
}

void clear_in(AgendaItem& item, const Leaving& leaving)
{
    clear(item.presenterID, leaving.members);
    clear(item.carriedMotionID, leaving.motions);
    clear(item.carriedActionID, leaving.actions);
    clear(item.approvesMeetingID, leaving.meetings);
}

void clear_in(Motion& motion, const Leaving& leaving, const Board& board)
{
    clear(motion.itemID, leaving.items);
    clear_keeping_name(motion.moverID, motion.moverName, leaving.members, board);
    clear_keeping_name(motion.seconderID, motion.seconderName, leaving.members, board);
    clear(motion.resumes, leaving.motions);
}

void clear_in(Meeting& meeting, const Leaving& leaving, const Board& board)
{
    clear(meeting.presidingID, leaving.members);
    clear(meeting.recorderID, leaving.members);
    clear(meeting.minutes.approvedAtMeetingID, leaving.meetings);
    std::erase_if(meeting.attendance, [&](const Attendance& mark) { return leaving.members.contains(mark.memberID); });
    for (AgendaItem& item : meeting.agenda)
        clear_in(item, leaving);
    for (Motion& motion : meeting.motions)
        clear_in(motion, leaving, board);
}

void clear_in(ActionItem& action, const Leaving& leaving, const Board& board)
{
    clear_keeping_name(action.ownerID, action.ownerName, leaving.members, board);
    clear(action.meetingID, leaving.meetings);
    clear(action.motionID, leaving.motions);
}

} // namespace

Edited without_references(const Board& board, const Leaving& leaving)
{
    Board after = board;
    for (Shared<Meeting>& meeting : after.meetings) {
        Meeting cleared = meeting;
        clear_in(cleared, leaving, board);
        if (cleared == *meeting)
            continue;
        if (is_locked(meeting))
            return fail(EditRefusal::minutesApproved);
        meeting = std::move(cleared);
    }
    for (ActionItem& action : after.actions)
        clear_in(action, leaving, board);
    return after;
}

} // namespace quillfern::board
