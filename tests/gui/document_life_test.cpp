#include "tests/gui/document_life_fixture.h"

#include <QListWidget>
#include <QSignalSpy>

#include <filesystem>

namespace quillfern::app {
namespace {

namespace fs = std::filesystem;

TEST_F(DocumentLifeTest, SavingWritesTheFileAndKeepsThePreviousStateForRevert)
{
    MainWindow& window = open_pantry();
    EXPECT_FALSE(is_enabled(window, "save"));
    rename_organization(window, "Second");
    EXPECT_TRUE(window.isWindowModified());
    give(window, "save");
    wait_saved(window);
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(name_on_disk(path_), "Second");

    rename_organization(window, "Third");
    give(window, "revert");
    auto* list = shown<QDialog>()->findChild<QListWidget*>("revertList");
    ASSERT_EQ(list->count(), 2) << "the saved file and one version";
    list->setCurrentRow(1);
    answer("Revert");
    EXPECT_EQ(window.document().title(), "Linden Ferry Community Pantry");
    EXPECT_EQ(name_on_disk(path_), "Second") << "the file is as it was until the next save";
    give(window, "undo");
    EXPECT_EQ(window.document().title(), "Third");
}

TEST_F(DocumentLifeTest, UndoAndRedoNameTheirStepAndReachTheDocumentFromAnEmptyField)
{
    MainWindow& window = open_pantry();
    EXPECT_FALSE(is_enabled(window, "undo"));
    rename_organization(window, "Second");
    EXPECT_EQ(window.findChild<QAction*>("undo")->text(), "Undo Rename");
    give(window, "undo");
    EXPECT_EQ(window.document().title(), "Linden Ferry Community Pantry");
    EXPECT_EQ(window.findChild<QAction*>("redo")->text(), "Redo Rename");
    give(window, "redo");
    EXPECT_EQ(window.document().title(), "Second");
    EXPECT_EQ(window.windowTitle(), "Second[*] — Quillfern");
}

TEST_F(DocumentLifeTest, ANewDocumentAsksForItsPlaceAndLivesThereFromThenOn)
{
    program_.preferences().edit([](PreferenceValues& values) { values.defaultFiscalStart = 7; });
    program_.new_document();
    MainWindow& window = *program_.windows().back();
    EXPECT_EQ(window.document().document().file().org.fiscalYearStartMonth, 7);
    EXPECT_FALSE(is_enabled(window, "rename"));
    rename_organization(window, "New");
    give(window, "save");
    const QString path = folder_.filePath(QStringLiteral("New.quillfern"));
    choose_path(path);
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path), "New");
    EXPECT_EQ(window.document().disk().path(), path);
    EXPECT_EQ(program_.recent_documents().paths().front(), path);
}

TEST_F(DocumentLifeTest, ClosingAsksOnlyWhereSomethingWouldBeLost)
{
    program_.new_document();
    program_.windows().back()->close();
    settle();
    EXPECT_TRUE(program_.windows().isEmpty()) << "an untouched document closes";

    program_.new_document();
    MainWindow* window = program_.windows().back();
    rename_organization(*window, "Untitled work");
    window->close();
    EXPECT_EQ(alert_title(), "Do you want to keep the new document “Untitled work”?");
    answer("Cancel");
    ASSERT_EQ(program_.windows().size(), 1);
    window->close();
    answer("Save…");
    choose_path(folder_.filePath(QStringLiteral("Kept.quillfern")));
    wait_saved(*window);
    settle();
    EXPECT_TRUE(program_.windows().isEmpty());
    EXPECT_EQ(name_on_disk(folder_.filePath(QStringLiteral("Kept.quillfern"))), "Untitled work");

    MainWindow& named = open_pantry();
    rename_organization(named, "Saved on closing");
    named.close();
    settle();
    EXPECT_TRUE(program_.windows().isEmpty()) << "a named one is saved without a question";
    EXPECT_EQ(name_on_disk(path_), "Saved on closing");
}

TEST_F(DocumentLifeTest, QuittingStopsAtTheFirstWindowThatStays)
{
    open_pantry();
    program_.new_document();
    rename_organization(*program_.windows().back(), "Untitled work");
    program_.quit();
    answer("Cancel");
    EXPECT_EQ(program_.windows().size(), 2);
    program_.quit();
    answer("Delete");
    settle();
    settle();
    EXPECT_TRUE(program_.windows().isEmpty());
}

TEST_F(DocumentLifeTest, AWindowThatCannotBeSavedEndsTheQuittingForGood)
{
    open(write_package(QStringLiteral("Other.quillfern"), file_with_days({})));
    MainWindow& window = open_pantry();
    rename_organization(window, "Mine");
    write_from_outside("Theirs");
    program_.quit();
    answer("Keep Both");
    wait_saved(window);
    window.close();
    settle();
    EXPECT_EQ(program_.windows().size(), 1) << "the other window was not asked to close any more";
}

TEST_F(DocumentLifeTest, LeavingTheProgramForAnotherOneSaves)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Second");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path_), "Second");
}

TEST_F(DocumentLifeTest, RenamingAndMovingTakeTheOpenDocumentAlong)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Unsaved");
    give(window, "rename");
    shown<QDialog>()->findChild<QLineEdit*>("renameName")->setText(QStringLiteral("Larder.quillfern"));
    answer("Rename");
    const QString renamed = folder_.filePath(QStringLiteral("Larder.quillfern"));
    EXPECT_FALSE(fs::exists(path_.toStdString()));
    EXPECT_EQ(window.document().disk().path(), renamed);
    EXPECT_TRUE(window.isWindowModified()) << "moving saves nothing";
    give(window, "save");
    wait_saved(window);
    EXPECT_EQ(name_on_disk(renamed), "Unsaved");

    write_package(QStringLiteral("Taken.quillfern"), file_with_days({}));
    give(window, "rename");
    shown<QDialog>()->findChild<QLineEdit*>("renameName")->setText(QStringLiteral("Taken"));
    answer("Rename");
    EXPECT_EQ(alert_title(), "Couldn’t move “Larder.quillfern”");
    EXPECT_EQ(window.document().disk().path(), renamed);
    EXPECT_EQ(name_on_disk(folder_.filePath(QStringLiteral("Taken.quillfern"))), "Linden Ferry Community Pantry");
}

TEST_F(DocumentLifeTest, ADuplicateIsADocumentOfItsOwn)
{
    MainWindow& window = open_pantry();
    give(window, "duplicate");
    ASSERT_EQ(program_.windows().size(), 2);
    MainWindow& copy = *program_.windows().back();
    EXPECT_TRUE(copy.isWindowModified());
    EXPECT_FALSE(copy.document().disk().is_named());
    rename_organization(copy, "Copy");
    EXPECT_EQ(window.document().title(), "Linden Ferry Community Pantry");
}

TEST_F(DocumentLifeTest, DeletingAGrantAsksFirstAndUndoBringsEverythingBack)
{
    program_.open_sample();
    MainWindow& window = *program_.windows().back();
    const QuillfernDocument before = window.document().document().value();
    const Uuid grant = before.package.file.grants.front()->id;
    const auto ask = [&] {
        window.model().edit([&](WindowState& state) {
            state.selection = SidebarItem::grant;
            state.shownGrant = grant;
        });
        window.ask(request::Plain::deleteGrant);
        EXPECT_EQ(alert_title(), "Delete this grant?");
        EXPECT_EQ(how_many_dialogs(), 1);
    };
    ask();
    answer("Cancel");
    EXPECT_FALSE(window.model().state().confirmDelete);
    EXPECT_EQ(window.document().document().value(), before);
    ask();
    answer("Delete Grant");
    EXPECT_EQ(window.document().document().file().grants.size(), before.package.file.grants.size() - 1);
    EXPECT_NE(window.model().state().selection, SidebarItem::grant);
    give(window, "undo");
    EXPECT_EQ(window.document().document().value(), before);
}

TEST_F(DocumentLifeTest, ACommandGivenTwiceActsTwice)
{
    MainWindow& window = open_pantry();
    QSignalSpy states(&window.model(), &WindowModel::changed);
    window.ask(request::Show{SidebarItem::grants});
    EXPECT_EQ(window.model().state().selection, SidebarItem::grants);
    EXPECT_FALSE(window.model().state().request);
    for (int time = 1; time <= 2; ++time) {
        window.ask(request::Export{ExportKind::calendar});
        EXPECT_EQ(how_many_dialogs(), 1);
        shown<QDialog>()->close();
        settle();
    }
}

} // namespace
} // namespace quillfern::app
