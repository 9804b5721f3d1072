#pragma once

#include "base/result.h"
#include "grants/grant_file.h"

#include <cstddef>
#include <string>
#include <variant>

/// A board that was kept in a file of its own comes into the organization's file.
namespace quillfern::grants {

/// What came with a board, for telling the user.
struct BoardCounts {
    std::size_t members = 0; ///< those who have left office, too
    std::size_t meetings = 0;
    std::size_t motions = 0;
    std::size_t actions = 0;

    friend bool operator==(const BoardCounts&, const BoardCounts&) = default;
};

struct ImportedBoard {
    GrantFile file;
    BoardCounts counts;
};

/// The file has this very board.
struct SameBoard { };

/// The file has another board, which an import would take away.
struct OtherBoard {
    std::string name; ///< the board's, else the organization's
};

using BoardImportRefusal = std::variant<SameBoard, OtherBoard>;

/// Whether anything has been recorded in the board, if only a setting: every file has a board, most of them an empty
/// one.
bool has_content(const board::Board& board);

/// The file with the board, which keeps the ids of its records. A file whose board is empty takes any.
///
/// Two boards are the same when their ids are. A board that was stored without an id gets a fresh one at each reading,
/// so equal boards are the same as well.
Result<ImportedBoard, BoardImportRefusal> import_board(const GrantFile& file, const board::Board& board);

} // namespace quillfern::grants
