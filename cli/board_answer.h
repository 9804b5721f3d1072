#pragma once

#include "base/text.h"
#include "board/board.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillfern::cli {

struct PrintedMember {
    Uuid id;
    std::string name;
    board::Role role = board::Role::director;
    bool votes = true;
};

struct PrintedMotion {
    Uuid id;
    Uuid meetingID;
    std::string number;
    board::MotionStatus status = board::MotionStatus::pending;
    std::string rule; ///< Majority of votes cast
    std::optional<board::VoteResult> result;
    std::optional<std::string> tallySentence;
};

/// What `board` says of a board.
struct BoardAnswer {
    std::string displayName;
    std::string bodyDisplayName;
    std::int64_t seats = 0;
    board::QuorumStatus quorum;
    std::vector<PrintedMember> members; ///< the current ones, in order
    std::vector<PrintedMotion> motions; ///< in meeting order, then motion order
    std::string nextMotionNumber;
};

BoardAnswer board_answer(const board::Board& board, std::int64_t present, std::int64_t year, Lang lang);

std::string as_json(const BoardAnswer& answer);
std::string as_text(const BoardAnswer& answer, Lang lang);

} // namespace quillfern::cli
