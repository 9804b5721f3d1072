#pragma once

#include "board/board.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Motion numbers run by year and prefix, from 1: 2026-014, or HOA-2026-014 with the prefix "HOA-".
///
/// A number once given is never rewritten, and the next is one more than the highest in use, so the gap that a deleted
/// motion leaves stays. Only numbers under the board's present prefix count.
namespace quillfern::board::MotionNumbering {

/// At least three digits of sequence; a longer one grows.
std::string format(std::string_view prefix, std::int64_t year, std::int64_t sequence);

/// The sequence that a number of that year and prefix holds: a whole decimal number after the hyphen, a sign allowed.
/// Absent for any other number: one with a suffix (2025-12A), with digits other than 0 to 9, or too large to have a
/// successor in 64 bits. Such a number was typed by hand and takes no part in the numbering.
std::optional<std::int64_t> sequence_of(std::string_view number, std::int64_t year, std::string_view prefix);

std::string next_number(const Board& board, std::int64_t year);

} // namespace quillfern::board::MotionNumbering
