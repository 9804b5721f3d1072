#include "app/window/board_open_dialog.h"
#include "board/board_json.h"
#include "board/sample_board.h"
#include "desktop/alert.h"
#include "grants/board_import.h"
#include "window_fixture.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>

namespace quillfern::app {
namespace {

/// A window on an organization, and board files that its user chooses.
class BoardImportWindowTest : public WindowTest {
protected:
    void put(const QString& name, const std::string& text)
    {
        const QString path = folder_.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(text));
    }

    void put_board(const QString& name, board::SampleBoard which)
    {
        put(name,
            write_board(sample_board(which, today_.days_since_epoch(), board::Lang::en, board::Calendar::local())));
    }

    /// Chooses the file in the window's dialog; gives the words that the window answers with.
    std::string import(const QString& name)
    {
        window_.ask(request::Plain::importMarrowind);
        auto* dialog = window_.findChild<BoardOpenDialog*>();
        EXPECT_TRUE(dialog);
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder_.filePath(name));
        window_.model().edit([](WindowState& state) { state.toast.reset(); });
        dialog->accept();
        const std::string words = answer();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return words;
    }

    /// The toast, else the title of the alert, which is closed.
    std::string answer()
    {
        if (const auto& toast = window_.model().state().toast)
            return toast->text;
        auto* alert = window_.findChild<desktop::Alert*>();
        if (!alert)
            return "";
        const std::string title = alert->findChild<QLabel*>("alertTitle")->text().toStdString();
        alert->reject();
        return title;
    }

    Document& document() { return window_.document().document(); }

    MainWindow& window_ = open(write_package("Pantry.quillfern", file_with_days({{2026, 10, 1}})));
};

TEST_F(BoardImportWindowTest, OneStepBringsTheBoardAndUndoTakesItBackOut)
{
    put_board("Club.marrowind/Board.json", board::SampleBoard::club);
    const grants::GrantFile before = document().file();
    EXPECT_THAT(import("Club.marrowind"), testing::StartsWith("Board imported: "));
    EXPECT_TRUE(grants::has_content(document().file().board));
    EXPECT_EQ(document().undo_stack().count(), 1);
    EXPECT_EQ(document().undo_stack().undoText(), "Import Board");
    document().undo_stack().undo();
    EXPECT_EQ(document().file(), before);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(BoardImportWindowTest, WhatIsRefusedChangesNothing)
{
    put_board("Club.marrowind/Board.json", board::SampleBoard::club);
    put_board("Homes.marrowind/Board.json", board::SampleBoard::homeowners);
    put("Broken.marrowind/Board.json", "{");
    put("Empty.marrowind/Read Me.txt", "");
    put("Newer.marrowind/Board.json", R"({"formatVersion": 2})");
    import("Club.marrowind");
    const grants::GrantFile with_board = document().file();
    for (const auto& [name, words] : {std::pair{"Broken.marrowind", "That isn’t a board file this app can read"},
             {"Empty.marrowind", "That isn’t a board file this app can read"},
             {"Newer.marrowind", "This board file is from a newer version"},
             {"Homes.marrowind", "This file already has a board"},
             {"Club.marrowind", "This board is already in this file. Nothing changed."}}) {
        EXPECT_EQ(import(QLatin1String(name)), words) << name;
        EXPECT_EQ(document().file(), with_board) << name;
    }
    EXPECT_EQ(document().undo_stack().count(), 1);
}

} // namespace
} // namespace quillfern::app
