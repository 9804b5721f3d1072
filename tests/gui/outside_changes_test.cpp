#include "app/document/document_words.h"
#include "tests/gui/document_life_fixture.h"

#include <filesystem>
#include <fstream>

namespace quillfern::app {
namespace {

namespace fs = std::filesystem;

/// Other programs read and write the document while it is open.
class OutsideChangesTest : public DocumentLifeTest { };

TEST_F(OutsideChangesTest, WhatAnInterruptedSaveHasLeftIsToldAndCanBeGoneBackTo)
{
    write_package(QStringLiteral(".~Pantry.quillfern-0123abcd~"), file_with_days({}));
    MainWindow& window = open_pantry();
    ASSERT_TRUE(window.model().state().toast);
    EXPECT_THAT(window.model().state().toast->text, testing::HasSubstr("Revert to Saved"));
    EXPECT_TRUE(is_enabled(window, "revert"));
}

TEST_F(OutsideChangesTest, WhatOthersWriteIsNeverWrittenOver)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Mine");
    write_from_outside("Theirs");
    give(window, "save");
    EXPECT_EQ(alert_title(), "“Pantry.quillfern” was changed by another program");
    answer("Cancel");
    EXPECT_EQ(name_on_disk(path_), "Theirs");
    EXPECT_EQ(notice_buttons(window), QStringList({"Reload", "Keep Both", "Save As…"}));

    press_notice(window, "Keep Both");
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path_), "Theirs");
    EXPECT_NE(window.document().disk().path(), path_);
    EXPECT_EQ(name_on_disk(window.document().disk().path()), "Mine");
    EXPECT_TRUE(notice_buttons(window).isEmpty());
}

TEST_F(OutsideChangesTest, ReloadShowsTheOtherVersionAndUndoBringsThisOneBack)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Mine");
    write_from_outside("Theirs");
    window.document().look_at_disk();
    press_notice(window, "Reload");
    EXPECT_EQ(window.document().title(), "Theirs");
    EXPECT_FALSE(window.isWindowModified());
    give(window, "undo");
    EXPECT_EQ(window.document().title(), "Mine");
    give(window, "save");
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path_), "Mine");
}

TEST_F(OutsideChangesTest, ADocumentWhoseFileVanishesIsKeptAndCanBeSavedElsewhere)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Mine");
    const fs::path away = path_.toStdString() + ".away";
    give(window, "save");
    wait_saved(window);
    fs::rename(path_.toStdString(), away);
    window.document().look_at_disk();
    EXPECT_TRUE(window.isWindowModified()) << "nothing but the window holds it";
    fs::rename(away, path_.toStdString());
    window.document().look_at_disk();
    EXPECT_FALSE(window.isWindowModified());

    fs::remove_all(path_.toStdString());
    window.document().look_at_disk();
    window.close();
    answer("Cancel");
    ASSERT_EQ(program_.windows().size(), 1);
    EXPECT_EQ(notice_buttons(window), QStringList({"Save As…"}));
    press_notice(window, "Save As…");
    const QString elsewhere = folder_.filePath(QStringLiteral("Elsewhere.quillfern"));
    choose_path(elsewhere);
    wait_saved(window);
    EXPECT_EQ(name_on_disk(elsewhere), "Mine");
    EXPECT_FALSE(fs::exists(path_.toStdString()));
}

TEST_F(OutsideChangesTest, AttachmentsThatOthersTakeAwayOrChangeDoNotKeepTheRestFromBeingSaved)
{
    program_.open_sample();
    MainWindow& window = *program_.windows().back();
    give(window, "save");
    path_ = folder_.filePath(QStringLiteral("Sample.quillfern"));
    choose_path(path_);
    wait_saved(window);
    std::vector<fs::path> files;
    for (const auto& file : fs::directory_iterator(path_.toStdString() + "/Attachments"))
        files.push_back(file.path());
    ASSERT_GE(files.size(), 2U);
    fs::remove(files[0]);
    std::ofstream(files[1]) << "changed";

    fs::rename(path_.toStdString(), path_.toStdString() + ".away");
    EXPECT_EQ(still_here(window.document().document().package()), "All but its attached files is still here");
    fs::rename(path_.toStdString() + ".away", path_.toStdString());

    rename_organization(window, "Mine");
    give(window, "save");
    answer("Keep Both");
    wait_saved(window);
    EXPECT_EQ(alert_title(), "Couldn’t save “Sample.quillfern”");
    answer("Save Anyway");
    wait_saved(window);
    const auto kept = grants::read_package(window.document().disk().path().toStdString());
    ASSERT_TRUE(kept);
    EXPECT_NE(window.document().disk().path(), path_);
    EXPECT_EQ(kept->package.file.org.name, "Mine");
    EXPECT_EQ(kept->package.attachments->size(), files.size() - 1);
    EXPECT_EQ(**kept->package.attachments->find(files[1].filename().string())->second.read(), "changed");
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(OutsideChangesTest, WhatAnotherProgramHasOpenCanBeReadButNotChanged)
{
    path_ = write_package(QStringLiteral("Pantry.quillfern"), file_with_days({{2026, 9, 15}}));
    auto lock = std::make_unique<Result<platform::DocumentLock, platform::LockError>>(
        platform::DocumentLock::acquire(path_.toStdString()));
    ASSERT_TRUE(*lock);
    MainWindow& window = open(path_);
    EXPECT_EQ(notice_buttons(window), QStringList({"Duplicate", "Try Again"}));
    rename_organization(window, "Not allowed");
    EXPECT_EQ(window.document().title(), "Linden Ferry Community Pantry");
    EXPECT_FALSE(is_enabled(window, "rename"));
    EXPECT_TRUE(is_enabled(window, "duplicate"));

    write_from_outside("Saved by the other");
    window.document().look_at_disk();
    ASSERT_TRUE(window.document().reload());
    give(window, "undo");
    window.close();
    answer("Save");
    ASSERT_TRUE(shown<QFileDialog>()) << "to another place only";
    shown<QFileDialog>()->reject();
    settle();
    EXPECT_EQ(name_on_disk(path_), "Saved by the other");
    lock.reset();
    press_notice(window, "Try Again");
    EXPECT_EQ(window.document().title(), "Saved by the other");
    rename_organization(window, "Mine now");
    give(window, "save");
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path_), "Mine now");
}

} // namespace
} // namespace quillfern::app
