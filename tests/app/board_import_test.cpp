#include "app/window/board_import.h"

#include "board/board_file.h"
#include "board/board_json.h"
#include "board/sample_board.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillfern::app {
namespace {

const QString unreadable = QStringLiteral("That isn’t a board file this app can read");

/// A folder in which board files stand.
class BoardImportTest : public testing::Test {
protected:
    static board::Board example_board(board::SampleBoard which = board::SampleBoard::club)
    {
        return sample_board(
            which, grants::Day{2026, 9, 10}.days_since_epoch(), board::Lang::en, board::Calendar::local());
    }

    QString put(const QString& name, const std::string& text)
    {
        const QString path = folder_.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(text));
        return path;
    }

    BoardImportAnswer import(const QString& name) const { return import_board_file(current_, folder_.filePath(name)); }

    QTemporaryDir folder_;
    grants::GrantFile current_;
};

TEST_F(BoardImportTest, APackageTheFileInItAndALooseFileGiveTheSameBoard)
{
    const board::Board board = example_board();
    put("Club.marrowind/Board.json", write_board(board));
    put("Downloads/Board (1).json", write_board(board));
    for (const char* name : {"Club.marrowind", "Club.marrowind/Board.json", "Downloads/Board (1).json"}) {
        const BoardImportAnswer answer = import(QString::fromUtf8(name));
        ASSERT_TRUE(answer.next) << name;
        EXPECT_EQ(*answer.next->board, board);
        EXPECT_TRUE(answer.toast.startsWith("Board imported: ")) << answer.toast.toStdString();
        EXPECT_EQ(answer.alert, desktop::AlertWords());
    }
}

TEST_F(BoardImportTest, TheToastCounts)
{
    put("A.json", "{}");
    EXPECT_EQ(import("A.json").toast, "Board imported: 0 members, 0 meetings, 0 motions, 0 actions");
    put("B.json", R"({"members": [{"id": "00000000-0000-0000-0000-000000000001"}],
        "meetings": [{"motions": [{}, {}]}], "actions": [{}]})");
    EXPECT_EQ(import("B.json").toast, "Board imported: 1 member, 1 meeting, 2 motions, 1 action");
}

TEST_F(BoardImportTest, WhatIsNoBoardChangesNothingAndSaysSo)
{
    put("Broken.marrowind/Board.json", "{\"members\": [");
    put("Nobody.marrowind/Board.json", R"({"members": [{"name": "Ruth"}]})");
    put("Empty.marrowind/Read Me.txt", "");
    put("Picture.marrowind/Board.json/x", "");
    put("letter.txt", "Dear board");
    put("Letter.marrowind", "Dear board");
    for (const char* name : {"Broken.marrowind", "Nobody.marrowind", "Empty.marrowind", "Picture.marrowind",
             "letter.txt", "Letter.marrowind", "missing.marrowind"}) {
        const BoardImportAnswer answer = import(QString::fromUtf8(name));
        EXPECT_FALSE(answer.next) << name;
        EXPECT_EQ(answer.toast, "") << name;
        EXPECT_EQ(answer.alert.title, unreadable) << name;
        EXPECT_EQ(
            answer.alert.message, "Choose a .marrowind board file, or the Board.json inside one. Nothing was changed.");
    }
}

TEST_F(BoardImportTest, ANewerFormatIsNotRead)
{
    put("Newer.marrowind/Board.json", R"({"formatVersion": 2, "name": "Elm Court"})");
    const BoardImportAnswer answer = import("Newer.marrowind");
    EXPECT_FALSE(answer.next);
    EXPECT_EQ(answer.alert.title, "This board file is from a newer version");
    EXPECT_EQ(
        answer.alert.message, "Update the app (Quillfern › Check for Updates…) and try again. Nothing was changed.");
}

TEST_F(BoardImportTest, AFileKeepsTheBoardThatItHas)
{
    put("Club.marrowind/Board.json", write_board(example_board()));
    current_ = *import("Club.marrowind").next;
    const BoardImportAnswer again = import("Club.marrowind");
    EXPECT_FALSE(again.next);
    EXPECT_EQ(again.toast, "This board is already in this file. Nothing changed.");
    EXPECT_EQ(again.alert, desktop::AlertWords());

    put("Homes.marrowind/Board.json", write_board(example_board(board::SampleBoard::homeowners)));
    const BoardImportAnswer other = import("Homes.marrowind");
    EXPECT_FALSE(other.next);
    EXPECT_EQ(other.alert.title, "This file already has a board");
    EXPECT_EQ(other.alert.message.toStdString(),
        current_.board->name
            + "’s board is in this file. Make a new file (File › New) and import the board there: each file is one "
              "organization.");
}

TEST_F(BoardImportTest, WhatCouldNotBeReadOfABoardIsTold)
{
    put("Odd.json", R"({"name": "Elm Court", "orgType": "cooperative"})");
    const BoardImportAnswer answer = import("Odd.json");
    ASSERT_TRUE(answer.next);
    EXPECT_EQ(answer.alert.title, "Some of this board couldn’t be read.");
    EXPECT_TRUE(answer.alert.detail.contains("orgType")) << answer.alert.detail.toStdString();
}

} // namespace
} // namespace quillfern::app
