#pragma once

#include "board/edits.h"

#include <string_view>
#include <variant>

/// The steps of a meeting's minutes, taken inside the board.
namespace quillfern::board {

/// The meeting is gone, or the minutes refuse the step.
using MinutesEditError = std::variant<EditRefusal, MinutesError>;
using MinutesEdited = Result<Board, MinutesEditError>;

MinutesEdited circulate_minutes(const Board& board, const Uuid& meeting_id, Instant now);
MinutesEdited approve_minutes(
    const Board& board, const Uuid& meeting_id, const MinutesApproval& approval, const Calendar& calendar);
MinutesEdited reopen_minutes(const Board& board, const Uuid& meeting_id, Instant now, std::string_view reason);

std::string message(const MinutesEditError& error, Lang lang);

} // namespace quillfern::board
