#pragma once

#include "board/calendar.h"
#include "board/edits.h"

/// Motions and their votes.
namespace quillfern::board {

/// A motion as the sheet for a new one shows it: numbered for the year of `made`, decided by the board's usual rule.
Motion draft_motion(const Board& board, const Uuid& id, Instant made, const Calendar& calendar);

/// A vote as its form starts: the attendance of now, and by roll call an aye of everyone present.
VoteRecord draft_vote(const Board& board, const Meeting& meeting, VoteMethod method);

/// What saving a motion did. When a motion to approve earlier minutes comes to carry, those minutes are approved with
/// its number on the day of this meeting, unless they are approved already or the meeting they belong to is later.
struct MotionSaved {
    Board board;
    std::optional<Uuid> approvedMeeting;
};

using MotionResult = Result<MotionSaved, EditRefusal>;

/// Adds the motion to the meeting, or replaces it there. A pending motion with a vote becomes a voted one.
MotionResult save_motion(const Board& board, const Uuid& meeting_id, const Motion& motion, const Calendar& calendar);

MotionResult record_vote(const Board& board, const Uuid& meeting_id, const Uuid& motion_id, const VoteRecord& vote,
    const Calendar& calendar);

/// `pending` puts the motion on the floor again and drops its vote; minutes that the vote approved stay approved until
/// they are reopened. `voted` needs a recorded vote.
Edited set_motion_status(const Board& board, const Uuid& meeting_id, const Uuid& motion_id, MotionStatus status);

struct TakenUp {
    Board board;
    Uuid motion; ///< the new one
};

/// A new motion with the words and the rule of a postponed or tabled one, under the agenda item that carries it. The
/// old one stays as it is.
Result<TakenUp, EditRefusal> take_up_again(const Board& board, const Uuid& meeting_id, const Uuid& old_motion_id,
    const Uuid& new_id, Instant made, const Calendar& calendar);

Edited remove_motion(const Board& board, const Uuid& meeting_id, const Uuid& motion_id);

} // namespace quillfern::board
