#include "board/board_file.h"
#include "board/sample_board.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

using namespace quillfern;
using namespace quillfern::board;

namespace {

const FreshValues fresh{[] { return Uuid{}; }, Instant{}};

board::ReadError refusal(std::string json)
{
    auto read = read_board_text(std::move(json), fresh);
    return read ? board::ReadError(Unreadable{"accepted"}) : read.error();
}

/// A folder of its own for one test.
class BoardPackageOnDisk : public testing::Test {
protected:
    BoardPackageOnDisk()
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~BoardPackageOnDisk() override { std::filesystem::remove_all(folder); }

    board::ReadError refused(const std::filesystem::path& path)
    {
        const auto read = read_board_file(path, fresh);
        return read ? board::ReadError(Unreadable{"accepted"}) : read.error();
    }

    Result<platform::SaveOutcome, platform::SaveError> write(const Board& board, platform::Existing existing)
    {
        const auto lock = platform::DocumentLock::acquire_in(folder, package);
        EXPECT_TRUE(lock.ok());
        return write_board_file(board, package, existing, *lock, "2026-09-10");
    }

    std::string text_of(const std::filesystem::path& path)
    {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "board_package_test";
    const std::filesystem::path package = folder / "Elm Court.marrowind";
};

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

TEST_F(BoardPackageOnDisk, IsWrittenWholeAndReadBack)
{
    Board board = sample_board(SampleBoard::club, 20'706, Lang::es, Calendar::with_offset(0));
    ASSERT_TRUE(write(board, platform::Existing::refuse).ok());
    EXPECT_EQ(text_of(package / "Read Me.txt"), read_me(board));
    EXPECT_EQ(text_of(package / "Board.json"), write_board(board));
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(package))
        names.insert(entry.path().filename());
    EXPECT_EQ(names, (std::set<std::string>{"Board.json", "Read Me.txt"}));
    EXPECT_EQ(read_board_file(package, fresh)->board, board);

    board.name = "Renamed";
    const auto again = write(board, platform::Existing::refuse);
    ASSERT_FALSE(again.ok());
    EXPECT_EQ(again.error().problem, platform::SaveProblem::exists);
    ASSERT_TRUE(write(board, platform::Existing::replacePackage).ok());
    EXPECT_EQ(read_board_file(package, fresh)->board, board);
}

TEST_F(BoardPackageOnDisk, IsRefusedInTheOrderOfTheChecks)
{
    EXPECT_EQ(refused(package), board::ReadError(NotAPackage{}));
    std::ofstream(folder / "plain.marrowind") << "{}";
    EXPECT_EQ(refused(folder / "plain.marrowind"), board::ReadError(NotAPackage{}));
    std::filesystem::create_directory(package);
    EXPECT_EQ(refused(package), board::ReadError(MissingBoard{}));
    std::filesystem::create_symlink(folder / "plain.marrowind", package / "Board.json");
    EXPECT_EQ(refused(package), board::ReadError(MissingBoard{}));
    std::filesystem::remove(package / "Board.json");
    std::ofstream(package / "Board.json") << "[1, 2]";
    EXPECT_EQ(message(refused(package), Lang::en), "The board can’t be read: Expected an object (line 1, column 1)");
    std::ofstream(package / "Board.json") << "{}";
    EXPECT_TRUE(read_board_file(package, fresh).ok());
    EXPECT_EQ(message(NewerFormat{2}, Lang::es),
        "Una versión más reciente guardó esta junta, en el formato 2. No se cambió nada en ella.");
}
