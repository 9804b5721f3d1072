#include "board/meeting_edits.h"

#include "board/board_values.h"
#include "board/references.h"

#include <algorithm>

namespace quillfern::board {
namespace {

using Refused = std::optional<EditRefusal>;

void mark(Meeting& meeting, const Uuid& member_id, std::optional<AttendanceStatus> status)
{
    std::vector<Attendance>& marks = meeting.attendance;
    const auto is_theirs = [&](const Attendance& one) { return one.memberID == member_id; };
    const auto first = std::find_if(marks.begin(), marks.end(), is_theirs);
    if (first == marks.end()) {
        if (status)
            marks.push_back({member_id, *status});
        return;
    }
    if (status)
        first->status = *status;
    marks.erase(std::remove_if(first + (status ? 1 : 0), marks.end(), is_theirs), marks.end());
}

} // namespace

MeetingDetails MeetingDetails::of(const Meeting& meeting)
{
    return {meeting.kind, meeting.title, meeting.date, meeting.lengthMinutes, meeting.location, meeting.presidingID,
        meeting.recorderID, meeting.calledToOrder, meeting.adjourned, meeting.purpose};
}

Edited edit_details(const Board& board, const Uuid& meeting_id, const MeetingDetails& details)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        const MeetingDetails before = MeetingDetails::of(meeting);
        for (const auto person : {&MeetingDetails::presidingID, &MeetingDetails::recorderID})
            if (const auto member = new_reference(&before, details, person); member && !member_by_id(board, *member))
                return EditRefusal::noSuchMember;
        if (details.calledToOrder && details.adjourned && *details.adjourned < *details.calledToOrder)
            return EditRefusal::endsBeforeItStarts;
        meeting.kind = details.kind;
        meeting.title = details.title;
        meeting.date = details.date;
        meeting.lengthMinutes = details.lengthMinutes;
        meeting.location = details.location;
        meeting.presidingID = details.presidingID;
        meeting.recorderID = details.recorderID;
        meeting.calledToOrder = details.calledToOrder;
        meeting.adjourned = details.adjourned;
        meeting.purpose = details.purpose;
        return {};
    });
}

Edited call_to_order(const Board& board, const Uuid& meeting_id, Instant now)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        if (meeting.calledToOrder)
            return EditRefusal::alreadyCalledToOrder;
        meeting.calledToOrder = now;
        return {};
    });
}

Edited adjourn(const Board& board, const Uuid& meeting_id, Instant now)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        if (!meeting.calledToOrder)
            return EditRefusal::notCalledToOrder;
        if (meeting.adjourned)
            return EditRefusal::alreadyAdjourned;
        if (now < *meeting.calledToOrder)
            return EditRefusal::endsBeforeItStarts;
        meeting.adjourned = now;
        return {};
    });
}

Edited mark_attendance(
    const Board& board, const Uuid& meeting_id, const Uuid& member_id, std::optional<AttendanceStatus> status)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        if (!member_by_id(board, member_id))
            return EditRefusal::noSuchMember;
        mark(meeting, member_id, status);
        return {};
    });
}

Edited mark_everyone_present(const Board& board, const Uuid& meeting_id)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        for (const Member& member : current_members(board))
            mark(meeting, member.id, AttendanceStatus::present);
        return {};
    });
}

Edited clear_attendance(const Board& board, const Uuid& meeting_id)
{
    return change_meeting(board, meeting_id, [](Meeting& meeting) -> Refused {
        meeting.attendance.clear();
        return {};
    });
}

Edited set_guests(const Board& board, const Uuid& meeting_id, std::string guests)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        meeting.guests = std::move(guests);
        return {};
    });
}

Edited set_notes(const Board& board, const Uuid& meeting_id, const Uuid& item_id, std::string notes)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        if (item_id == other_business_id) {
            meeting.notes = std::move(notes);
            return {};
        }
        for (AgendaItem& item : meeting.agenda)
            if (item.id == item_id) {
                item.notes = std::move(notes);
                return {};
            }
        return EditRefusal::noSuchItem;
    });
}

Edited remove_meeting(const Board& board, const Uuid& meeting_id)
{
    const Meeting* meeting = meeting_by_id(board, meeting_id);
    if (!meeting)
        return fail(EditRefusal::noSuchMeeting);
    if (is_locked(*meeting))
        return fail(EditRefusal::minutesApproved);
    Leaving leaving;
    leaving.meetings.insert(meeting_id);
    for (const Motion& motion : meeting->motions)
        leaving.motions.insert(motion.id);
    Board remaining = board;
    std::erase_if(remaining.meetings, [&](const Shared<Meeting>& one) { return one->id == meeting_id; });
    return without_references(remaining, leaving);
}

} // namespace quillfern::board
