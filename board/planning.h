#pragma once

#include "board/calendar.h"
#include "board/edits.h"

#include <cstdint>
#include <string>

/// Planning a meeting and what it inherits from earlier ones.
namespace quillfern::board {

/// What the sheet about a new meeting asks for. Absent fields take the board's defaults.
struct MeetingPlan {
    MeetingKind kind = MeetingKind::regular;
    Instant date;
    std::string title;
    std::string purpose;
    std::optional<std::int64_t> lengthMinutes;
    std::optional<std::string> location;
};

/// The board's usual hour on that day (days since 1970-01-01).
Instant usual_start(const Board& board, std::int64_t day, const Calendar& calendar);

/// The meeting as planned, with the usual agenda of its kind and what is carried forward. The president is proposed to
/// preside and the secretary to record.
struct MeetingPlanned {
    Board board;
    Uuid meeting;
};
MeetingPlanned plan_meeting(
    const Board& board, const MeetingPlan& plan, const NewId& new_id, const Calendar& calendar, Lang lang);

/// Adds to the agenda what earlier meetings left over and the agenda does not hold yet: under Minutes, the minutes that
/// are not approved; under Old business, motions that were postponed or tabled and not taken up again, then action
/// items that are not done. A special meeting is called for its purpose only and inherits nothing.
Edited carry_forward(
    const Board& board, const Uuid& meeting_id, const NewId& new_id, const Calendar& calendar, Lang lang);

} // namespace quillfern::board
