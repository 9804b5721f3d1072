#pragma once

#include "base/read_state.h"
#include "base/result.h"
#include "board/board.h"

#include <string>

namespace quillfern::board {

struct BoardRead {
    Board board;
    ReadNotes notes; ///< what was replaced by a default or left out
};

/// Decodes the text of "Board.json". Only a text that is no JSON object, or a member without a readable id, refuses
/// it; everything else that is missing or unreadable takes its default and is told. The format version is the caller's
/// to judge. `json` may be changed (room for the parser's padding).
Result<BoardRead, quillfern::ReadError> read_board(std::string json, const FreshValues& fresh);

/// The text of "Board.json" in the current format: pretty-printed, keys sorted, the same bytes for equal boards.
std::string write_board(const Board& board);

} // namespace quillfern::board
