#pragma once

#include "base/result.h"
#include "board/board_json.h"

#include <string>

namespace quillfern::cli {

/// The board of an organization package, or a board package by itself, with the notes on the board's own values. The
/// failure is a sentence for a person.
Result<board::BoardRead, std::string> open_board(const std::string& path);

/// Writes the board as a board package; one that stands there is replaced only when `force` is set.
Result<Done, std::string> write_board(const board::Board& board, const std::string& path, bool force);

} // namespace quillfern::cli
