#include "board/board_file.h"

#include "board/board_values.h"

#include <string_view>

namespace quillfern::board {
namespace {

constexpr std::string_view board_application = "Marrowind";
constexpr std::string_view web_address = QUILLFERN_BOARD_APP_WEB_ADDRESS;
constexpr std::string_view main_file = "Board.json";

} // namespace

const platform::PackageLayout& board_package_layout()
{
    static const platform::PackageLayout layout = [] {
        platform::PackageLayout made;
        made.mainFile = main_file;
        made.readMeFile = "Read Me.txt";
        return made;
    }();
    return layout;
}

std::string read_me(const Board& board)
{
    std::string text = display_name(board, Lang::en);
    for (const std::string_view piece :
        {std::string_view("\nThis is a "), board_application,
            std::string_view(" board file: the board's members, meetings, agendas, minutes, motions and action items.\n"
                             "Open it with "),
            board_application, std::string_view(" on a Mac ("), web_address, std::string_view(").\nWithout the app, "),
            main_file,
            std::string_view(" in this folder holds everything as plain text (JSON).\n"
                             "Keep this file in a shared folder or hand it to the next secretary; there's no account "
                             "or server behind it.\n")})
        text += piece;
    return text;
}

platform::PackageContents board_package(const Board& board)
{
    platform::PackageContents contents;
    contents.mainText = write_board(board);
    contents.readMe = read_me(board);
    return contents;
}

Result<BoardRead, ReadError> read_board_text(std::string json, const FreshValues& fresh)
{
    auto read = read_board(std::move(json), fresh);
    if (!read)
        return fail(ReadError(Unreadable{read.error().text()}));
    if (read->board.formatVersion > Board::current_format)
        return fail(ReadError(NewerFormat{read->board.formatVersion}));
    return std::move(*read);
}

} // namespace quillfern::board
