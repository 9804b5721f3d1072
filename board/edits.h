#pragma once

#include "base/result.h"
#include "base/text.h"
#include "board/board.h"

#include <functional>
#include <optional>
#include <string_view>

/// Edits of a board are functions from board to board: the given one is never touched, and a refused edit gives a
/// reason instead.
///
/// Nothing of a meeting with approved minutes can be edited, and no other edit may reach into one, for example by
/// removing a record that it refers to. Reopening the minutes comes first.
namespace quillfern::board {

enum class EditRefusal {
    noSuchMeeting,
    noSuchItem,
    noSuchMotion,
    noSuchAction,
    noSuchMember,
    idInUse,
    minutesApproved,
    alreadyCalledToOrder,
    notCalledToOrder,
    alreadyAdjourned,
    endsBeforeItStarts,
    voteMissing, ///< a motion is called voted, but no vote is recorded
    notPutOff, ///< only a postponed or tabled motion is taken up again
    alreadyTakenUp,
    memberVoted, ///< a roll call counts the member's vote
};

/// A sentence for the person whose edit was refused.
std::string_view message(EditRefusal refusal, Lang lang);

using Edited = Result<Board, EditRefusal>;

/// Gives the id of each new record.
using NewId = std::function<Uuid()>;

/// The change of one meeting on which all others rest. `change` works on a copy and may refuse; the meeting's id and
/// minutes stay whatever it does to them.
Edited change_meeting(
    const Board& board, const Uuid& meeting_id, const std::function<std::optional<EditRefusal>(Meeting&)>& change);

} // namespace quillfern::board
