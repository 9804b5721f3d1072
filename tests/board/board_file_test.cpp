#include "board/board_file.h"

#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;

namespace {

const FreshValues fresh{[] { return Uuid{}; }, Instant{}};

board::ReadError refusal(std::string json)
{
    auto read = read_board_text(std::move(json), fresh);
    return read ? board::ReadError(Unreadable{"accepted"}) : read.error();
}

} // namespace

TEST(BoardPackage, HoldsTheRecordsAndANoteForPeople)
{
    Board board;
    board.name = " Elm Court ";
    const platform::PackageContents contents = board_package(board);
    EXPECT_EQ(contents.mainText, write_board(board));
    EXPECT_EQ(contents.readMe,
        "Elm Court\n"
        "This is a Marrowind board file: the board's members, meetings, agendas, minutes, motions and action items.\n"
        "Open it with Marrowind on a Mac (https://marrowind.example).\n"
        "Without the app, Board.json in this folder holds everything as plain text (JSON).\n"
        "Keep this file in a shared folder or hand it to the next secretary; there's no account or server behind "
        "it.\n");
    EXPECT_EQ(read_me({}).substr(0, 15), "Untitled board\n");
}

TEST(BoardPackage, IsNotOpenedWhenItsFormatIsNewer)
{
    EXPECT_EQ(refusal(R"({"formatVersion": 2, "name": "Elm Court"})"), board::ReadError(NewerFormat{2}));
    EXPECT_EQ(read_board_text(R"({"formatVersion": 0})", fresh)->board.formatVersion, 0);
    EXPECT_EQ(read_board_text("{}", fresh)->board.formatVersion, 1);
    EXPECT_EQ(std::get<Unreadable>(refusal(R"({"formatVersion": 2, "members": [{}]})")).detail,
        "members[0].id: Missing (line 1, column 34)");
}
