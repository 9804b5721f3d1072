#pragma once

#include "board/edits.h"

#include <cstddef>

/// The items of a meeting's agenda. After each of these edits the items are stored in the order in which they are
/// shown: by section, then in the order that the secretary gave them.
namespace quillfern::board {

/// At the end of its section.
Edited add_item(const Board& board, const Uuid& meeting_id, const AgendaItem& item);

/// An item whose section changes goes to the end of the new one.
Edited edit_item(const Board& board, const Uuid& meeting_id, const AgendaItem& item);

/// Motions made under the item stay with the meeting, under no item.
Edited remove_item(const Board& board, const Uuid& meeting_id, const Uuid& item_id);

/// To a place within a section, counted among its other items; a place beyond the end is the end.
Edited place_item(
    const Board& board, const Uuid& meeting_id, const Uuid& item_id, AgendaSection section, std::size_t place);

enum class Direction { up, down };

/// One step in the order shown. At a section's edge the item stays where it is on the page and joins the neighbouring
/// section; the first item does not move up, nor the last one down.
Edited move_item(const Board& board, const Uuid& meeting_id, const Uuid& item_id, Direction direction);

} // namespace quillfern::board
