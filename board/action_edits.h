#pragma once

#include "board/edits.h"

/// Action items belong to the board, so what becomes of one can be recorded long after the meeting that assigned it is
/// locked. What that meeting's minutes say of it cannot change any more: that it was assigned there, its title and its
/// motion.
namespace quillfern::board {

/// Adds the item or replaces the one with its id.
Edited save_action(const Board& board, const ActionItem& action);

/// `completed` is `now` when the item becomes done, and absent when it is anything else.
Edited set_action_status(const Board& board, const Uuid& action_id, ActionStatus status, Instant now);

Edited remove_action(const Board& board, const Uuid& action_id);

} // namespace quillfern::board
