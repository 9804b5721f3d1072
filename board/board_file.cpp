#include "board/board_file.h"

#include "board/board_values.h"
#include "platform/package_reader.h"

#include <string_view>
#include <system_error>

namespace quillfern::board {
namespace {

constexpr std::string_view board_application = "Marrowind";
constexpr std::string_view web_address = QUILLFERN_BOARD_APP_WEB_ADDRESS;
constexpr std::string_view main_file = "Board.json";

constexpr Text unreadable{"The board can’t be read: ", "No se puede leer la junta: "};
constexpr Text newer{"This board was saved by a newer version, in format {}. Nothing in it was changed.",
    "Una versión más reciente guardó esta junta, en el formato {}. No se cambió nada en ella."};
constexpr Text not_a_package{
    "This isn’t a board file: it isn’t a folder.", "Esto no es un archivo de junta: no es una carpeta."};
constexpr Text missing_board{
    "This isn’t a board file: Board.json is missing from it.", "Esto no es un archivo de junta: falta Board.json."};

ReadError read_error(const platform::PackageReadError& error)
{
    switch (error.problem) {
    case platform::PackageProblem::notFound:
    case platform::PackageProblem::notAPackage:
        return NotAPackage{};
    case platform::PackageProblem::missingMainFile:
        return MissingBoard{};
    case platform::PackageProblem::tooLarge:
        return Unreadable{error.path + ": too large for a board"};
    case platform::PackageProblem::unreadable:
        break;
    }
    return Unreadable{error.path + ": " + std::generic_category().message(error.systemError)};
}

/// What is written has to be what was meant: it is read back before anything on the disk changes.
bool reads_back(const std::string& text, Board board)
{
    board.formatVersion = Board::current_format;
    const auto read = read_board_text(text, {[] { return Uuid{}; }, {}});
    return read && read->board == board && read->notes.empty();
}

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

Result<BoardRead, ReadError> read_board_file(const std::string& path, const FreshValues& fresh)
{
    auto package = platform::read_package_folder(path, board_package_layout());
    if (!package)
        return fail(read_error(package.error()));
    return read_board_text(std::move(package->contents.mainText), fresh);
}

std::string message(const ReadError& error, Lang lang)
{
    if (const auto* problem = std::get_if<Unreadable>(&error))
        return std::string(unreadable(lang)) + problem->detail;
    if (std::holds_alternative<NotAPackage>(error))
        return std::string(not_a_package(lang));
    if (std::holds_alternative<MissingBoard>(error))
        return std::string(missing_board(lang));
    std::string text(newer(lang));
    return text.replace(text.find("{}"), 2, std::to_string(std::get<NewerFormat>(error).version));
}

Result<platform::SaveOutcome, platform::SaveError> write_board_file(const Board& board, const std::string& path,
    platform::Existing existing, const platform::DocumentLock& lock, const std::string& today)
{
    const platform::PackageContents contents = board_package(board);
    if (!reads_back(contents.mainText, board))
        return fail(platform::SaveError{
            platform::SaveProblem::badContents, platform::SaveStep::check, std::string(main_file), 0});
    const platform::SaveRequest request{board_package_layout(), contents, today, nullptr};
    auto saved = platform::save_package_as(path, request, existing, platform::Ownership::copy, lock);
    if (!saved)
        return fail(saved.error());
    return std::move(saved->outcome);
}

} // namespace quillfern::board
