#include "grants/board_import.h"

#include "base/trim.h"
#include "board/board_values.h"

#include <string_view>

namespace quillfern::grants {
namespace {

/// `board` with everything of `like` that reading makes up.
board::Board with_identity_of(board::Board board, const board::Board& like)
{
    board.formatVersion = like.formatVersion;
    board.id = like.id;
    board.created = like.created;
    return board;
}

bool is_same(const board::Board& ours, const board::Board& theirs)
{
    return ours.id == theirs.id || with_identity_of(theirs, ours) == ours;
}

BoardCounts counts_of(const board::Board& board)
{
    BoardCounts counts{board.members.size(), board.meetings.size(), 0, board.actions.size()};
    for (const Shared<board::Meeting>& meeting : board.meetings)
        counts.motions += meeting->motions.size();
    return counts;
}

std::string name_of(const GrantFile& file)
{
    const std::string_view organization = trimmed(file.org.name);
    const bool use_organization = trimmed(file.board->name).empty() && !organization.empty();
    return use_organization ? std::string(organization) : display_name(*file.board, board::Lang::en);
}

} // namespace

bool has_content(const board::Board& board)
{
    return with_identity_of(board::Board(), board) != board;
}

Result<ImportedBoard, BoardImportRefusal> import_board(const GrantFile& file, const board::Board& board)
{
    if (has_content(file.board)) {
        if (is_same(file.board, board))
            return fail(BoardImportRefusal(SameBoard()));
        return fail(BoardImportRefusal(OtherBoard{name_of(file)}));
    }
    ImportedBoard imported{file, counts_of(board)};
    imported.file.board = board;
    return imported;
}

} // namespace quillfern::grants
