#pragma once

#include "board/edits.h"

namespace quillfern::board {

/// Adds the member or replaces the one with the same id.
Edited save_member(const Board& board, const Member& member);

/// For someone who was entered by mistake: whoever leaves the board is marked as out of office instead. Refused when
/// approved minutes or a roll call name the member, whose vote would leave the count.
Edited remove_member(const Board& board, const Uuid& member_id);

} // namespace quillfern::board
