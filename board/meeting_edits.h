#pragma once

#include "board/edits.h"

#include <string>

/// The course of one meeting: its particulars, who is there, when it started and ended, and what was noted.
namespace quillfern::board {

/// What the sheet about a meeting edits.
struct MeetingDetails {
    MeetingKind kind = MeetingKind::regular;
    std::string title;
    Instant date;
    std::int64_t lengthMinutes = 90;
    std::string location;
    std::optional<Uuid> presidingID;
    std::optional<Uuid> recorderID;
    std::optional<Instant> calledToOrder;
    std::optional<Instant> adjourned;
    std::string purpose;

    static MeetingDetails of(const Meeting& meeting);
};

Edited edit_details(const Board& board, const Uuid& meeting_id, const MeetingDetails& details);

Edited call_to_order(const Board& board, const Uuid& meeting_id, Instant now);
Edited adjourn(const Board& board, const Uuid& meeting_id, Instant now);

/// Replaces the member's mark; absent removes it.
Edited mark_attendance(
    const Board& board, const Uuid& meeting_id, const Uuid& member_id, std::optional<AttendanceStatus> status);

/// Marks all members in office as present; marks of former members stay.
Edited mark_everyone_present(const Board& board, const Uuid& meeting_id);
Edited clear_attendance(const Board& board, const Uuid& meeting_id);
Edited set_guests(const Board& board, const Uuid& meeting_id, std::string guests);

/// The notes under an agenda item, or under `other_business_id` those that belong to none.
Edited set_notes(const Board& board, const Uuid& meeting_id, const Uuid& item_id, std::string notes);

/// Action items that were assigned at the meeting stay with the board.
Edited remove_meeting(const Board& board, const Uuid& meeting_id);

} // namespace quillfern::board
