#pragma once

#include "board/board.h"
#include "board/calendar.h"

#include <cstdint>

/// Made-up boards that show what a board file can hold, dated around `today` so that they always look alive: the next
/// meeting is planned, the last one's minutes are being finished. The same day gives the same board, identifiers
/// included, so that output can be compared.
namespace quillfern::board {

enum class SampleBoard {
    nonprofit, ///< the sample organization's own board
    homeowners,
    club
};

/// `today` is in days since 1970-01-01.
Board sample_board(SampleBoard which, std::int64_t today, Lang lang, const Calendar& calendar);

// What the sample organization's grants point at.

/// The n-th motion of a sample board, from 1.
Uuid sample_motion_id(SampleBoard which, std::uint32_t number);

/// The item of the nonprofit's next agenda that brings a grant before the board.
Uuid sample_grant_item_id();

} // namespace quillfern::board
