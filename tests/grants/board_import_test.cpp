#include "grants/board_import.h"

#include "board/board_json.h"
#include "board/sample_board.h"
#include "grants/grant_file_json.h"
#include "grants/sample_organization.h"
#include "platform/random_uuid.h"

#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

board::Board example_board(board::SampleBoard which = board::SampleBoard::homeowners)
{
    return board::sample_board(which, Day{2026, 9, 10}.days_since_epoch(), Lang::en, board::Calendar::local());
}

/// As reading a board file at this moment gives it.
board::Board read_now(const std::string& json)
{
    return board::read_board(json, {platform::random_uuid, Instant{1}})->board;
}

const BoardImportRefusal* refusal(const Result<ImportedBoard, BoardImportRefusal>& result)
{
    return result ? nullptr : &result.error();
}

bool is_same_board(const Result<ImportedBoard, BoardImportRefusal>& result)
{
    return refusal(result) && std::holds_alternative<SameBoard>(*refusal(result));
}

std::string name_of_other(const Result<ImportedBoard, BoardImportRefusal>& result)
{
    const auto* other = refusal(result) ? std::get_if<OtherBoard>(refusal(result)) : nullptr;
    return other ? other->name : "(none)";
}

TEST(BoardImport, AFileWithoutABoardTakesItWholeAndNothingElseChanges)
{
    GrantFile file = sample_organization({2026, 9, 10}, Lang::en).file;
    file.board = board::Board();
    const board::Board board = example_board();
    auto imported = import_board(file, board);
    ASSERT_TRUE(imported);
    EXPECT_EQ(imported->file.board, Shared<board::Board>(board));
    std::size_t motions = 0;
    for (const auto& meeting : board.meetings)
        motions += meeting->motions.size();
    EXPECT_EQ(
        imported->counts, (BoardCounts{board.members.size(), board.meetings.size(), motions, board.actions.size()}));
    EXPECT_GT(motions, 0U);
    imported->file.board = file.board;
    EXPECT_EQ(imported->file, file);
}

TEST(BoardImport, AFileThatWasSavedWithoutABoardStillHasNone)
{
    const auto read = read_grant_file(write_grant_file(GrantFile()), {platform::random_uuid, Instant{5}});
    EXPECT_FALSE(has_content(read->file.board));
    board::Board started = read->file.board;
    started.seats = 9;
    EXPECT_TRUE(has_content(started)) << "a setting that somebody made must not be lost";
}

TEST(BoardImport, TheSameBoardIsKnownByItsIdAndOneWithoutAnIdByWhatIsInIt)
{
    GrantFile file;
    file.board = example_board();
    board::Board later = file.board;
    later.name += " (later)";
    EXPECT_TRUE(is_same_board(import_board(file, later)));

    const std::string without_id =
        R"({"name": "Elm Court", "members": [{"id": "00000000-0000-0000-0000-000000000001"}]})";
    file.board = read_now(without_id);
    EXPECT_TRUE(is_same_board(import_board(file, read_now(without_id))));
}

TEST(BoardImport, AnotherBoardIsNamedAndStays)
{
    GrantFile file;
    file.org.name = " Linden Ferry ";
    file.board = example_board();
    const board::Board other = example_board(board::SampleBoard::club);
    EXPECT_EQ(name_of_other(import_board(file, other)), file.board->name);
    file.board = file.board.with([](board::Board& board) { board.name = "  "; });
    EXPECT_EQ(name_of_other(import_board(file, other)), "Linden Ferry");
    file.org.name.clear();
    EXPECT_EQ(name_of_other(import_board(file, other)), "Untitled board");
}

} // namespace
} // namespace quillfern::grants
