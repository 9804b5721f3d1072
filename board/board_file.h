#pragma once

#include "base/read_state.h"
#include "base/result.h"
#include "board/board_json.h"
#include "platform/directory_save.h"

#include <cstdint>
#include <string>
#include <variant>

/// A board on its own: a folder "….marrowind" that holds "Board.json" and, for people who open the folder without the
/// application, "Read Me.txt". It is what one secretary hands to the next.
namespace quillfern::board {

/// "Board.json" could not be decoded as a board.
struct Unreadable {
    std::string detail;

    friend bool operator==(const Unreadable&, const Unreadable&) = default;
};

/// The board was written by a newer version and is not opened, however much of it could be read.
struct NewerFormat {
    std::int64_t version = 0;

    friend bool operator==(const NewerFormat&, const NewerFormat&) = default;
};

/// What was given is no folder.
struct NotAPackage {
    friend bool operator==(const NotAPackage&, const NotAPackage&) = default;
};

/// The folder holds no regular file "Board.json".
struct MissingBoard {
    friend bool operator==(const MissingBoard&, const MissingBoard&) = default;
};

using ReadError = std::variant<Unreadable, NewerFormat, NotAPackage, MissingBoard>;

const platform::PackageLayout& board_package_layout();

/// The text of "Read Me.txt", in English whatever the board's language.
std::string read_me(const Board& board);

/// The two files as they are written.
platform::PackageContents board_package(const Board& board);

/// From the text of "Board.json".
Result<BoardRead, ReadError> read_board_text(std::string json, const FreshValues& fresh);

/// From the package itself; links inside it are not followed.
Result<BoardRead, ReadError> read_board_file(const std::string& path, const FreshValues& fresh);

/// A sentence for the person who wanted to open the board.
std::string message(const ReadError& error, Lang lang);

/// Writes the board as a package of its own, whole or not at all. `lock` is the lock of `path`; `today` (2026-03-07)
/// names a copy that someone else wrote in the meantime.
Result<platform::SaveOutcome, platform::SaveError> write_board_file(const Board& board, const std::string& path,
    platform::Existing existing, const platform::DocumentLock& lock, const std::string& today);

} // namespace quillfern::board
