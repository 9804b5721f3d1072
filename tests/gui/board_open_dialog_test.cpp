#include "app/window/board_import.h"
#include "app/window/board_open_dialog.h"
#include "desktop/alert.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quillfern::app {
namespace {

/// A folder with a board package, a loose board file and a letter.
class BoardOpenDialogTest : public testing::Test {
protected:
    BoardOpenDialogTest()
    {
        QDir(folder_.path()).mkpath("Club.marrowind");
        for (const char* name : {"Club.marrowind/Board.json", "Board.json", "letter.txt"}) {
            QFile file(folder_.filePath(QString::fromUtf8(name)));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(R"({"name": "Elm Court", "id": "00000000-0000-0000-0000-000000000001"})");
        }
    }

    void show(QFileDialog* dialog)
    {
        dialog->setViewMode(QFileDialog::Detail);
        dialog->setDirectory(folder_.path());
        view_ = dialog->findChild<QTreeView*>("treeView");
        ASSERT_TRUE(QTest::qWaitFor([this] { return names().size() == 2; })) << names().join(", ").toStdString();
    }

    QStringList names() const
    {
        QStringList shown;
        for (int row = 0; row < view_->model()->rowCount(view_->rootIndex()); ++row)
            shown.append(view_->model()->index(row, 0, view_->rootIndex()).data().toString());
        return shown;
    }

    QTemporaryDir folder_;
    QTreeView* view_ = nullptr;
};

TEST_F(BoardOpenDialogTest, OffersPackagesAndTheirFileAndTakesWhatIsTyped)
{
    const std::pair<QString, QString> cases[] = {
        {"Board.json", "Board.json"},
        {"Club.marrowind", "Club.marrowind"},
        {"Club.marrowind/Board.json", "Club.marrowind"},
        {"letter.txt", "letter.txt"}, // what it is comes out on reading
        {"nothing.marrowind", ""},
    };
    for (const auto& [typed, path] : cases) {
        auto* dialog = new BoardOpenDialog(nullptr);
        QSignalSpy chosen(dialog, &BoardOpenDialog::board_chosen);
        dialog->open();
        show(dialog);
        EXPECT_EQ(names(), QStringList({"Board.json", "Club.marrowind"}));
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(typed);
        dialog->accept();
        const QString found = chosen.isEmpty() ? QString() : chosen[0][0].toString();
        EXPECT_EQ(found, path.isEmpty() ? QString() : folder_.filePath(path)) << typed.toStdString();
        EXPECT_EQ(dialog->findChild<desktop::Alert*>() != nullptr, path.isEmpty()) << typed.toStdString();
        delete dialog;
    }
}

TEST_F(BoardOpenDialogTest, ReturnOrTheButtonImportsAPackageAndTheSecondTimeSaysSo)
{
    QWidget window;
    window.show();
    grants::GrantFile file;
    QStringList told;
    for (int round = 0; round < 2; ++round) {
        start_board_import([&file] { return file; }, &window,
            [&](const grants::GrantFile& next, const QString& label, const QString& toast) {
                file = next;
                told.append({label, toast});
            });
        auto* dialog = window.findChild<BoardOpenDialog*>();
        ASSERT_TRUE(dialog);
        show(dialog);
        view_->setFocus();
        view_->setCurrentIndex(view_->model()->index(1, 0, view_->rootIndex()));
        QPushButton* import = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        EXPECT_TRUE(import->isEnabled());
        EXPECT_EQ(import->text(), "Import");
        if (round == 0)
            QTest::keyClick(view_, Qt::Key_Return);
        else
            import->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(file.board->name, "Elm Court");
    EXPECT_EQ(told,
        QStringList({"Import Board", "Board imported: 0 members, 0 meetings, 0 motions, 0 actions", "Import Board",
            "This board is already in this file. Nothing changed."}));
    EXPECT_FALSE(window.findChild<desktop::Alert*>());
}

} // namespace
} // namespace quillfern::app
