#include "app/document/document_words.h"
#include "app/document/open_document.h"
#include "app/window/document_desk.h"
#include "app/window/document_notice.h"
#include "app/window/window_requests.h"
#include "desktop/alert.h"
#include "grants/org_package.h"
#include "window_fixture.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

#include <filesystem>
#include <fstream>

namespace quillfern::app {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// Drives the File menu as a user does, and looks at the disk afterwards.
class DocumentLifeTest : public WindowTest {
protected:
    DocumentLifeTest() { settle(); }

    ~DocumentLifeTest() override
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<QDialog*>(widget))
                widget->close();
        settle();
    }

    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    MainWindow& open_pantry(const QString& name = QStringLiteral("Pantry.quillfern"))
    {
        path_ = write_package(name, file_with_days({{2026, 9, 15}}));
        return open(path_);
    }

    static void rename_organization(MainWindow& window, const char* name)
    {
        grants::GrantFile next = window.document().document().file();
        next.org.name = name;
        window.requests().edit(QStringLiteral("Rename"), next);
    }

    static void give(MainWindow& window, const char* command)
    {
        auto* action = window.findChild<QAction*>(QString::fromLatin1(command));
        ASSERT_TRUE(action) << command;
        ASSERT_TRUE(action->isEnabled()) << command;
        action->trigger();
    }

    static bool is_enabled(const MainWindow& window, const char* command)
    {
        return window.findChild<QAction*>(QString::fromLatin1(command))->isEnabled();
    }

    static std::string name_on_disk(const QString& path)
    {
        const auto opened = grants::read_package(path.toStdString());
        return opened ? opened->package.file.org.name : "(unreadable)";
    }

    template <class Widget>
    static Widget* shown()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<Widget*>(widget); found && found->isVisible())
                return found;
        return nullptr;
    }

    static auto how_many_dialogs()
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::count_if(widgets.begin(), widgets.end(),
            [](QWidget* widget) { return widget->isVisible() && qobject_cast<QDialog*>(widget); });
    }

    /// Presses a button of the alert or sheet that is open.
    static void answer(const char* text)
    {
        auto* dialog = shown<QDialog>();
        ASSERT_TRUE(dialog) << text;
        for (QPushButton* button : dialog->findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(text)) {
                button->click();
                return settle();
            }
        FAIL() << "no button " << text;
    }

    static QString alert_title()
    {
        auto* alert = shown<desktop::Alert>();
        return alert ? alert->findChild<QLabel*>("alertTitle")->text() : QString();
    }

    static void choose_path(const QString& path)
    {
        auto* panel = shown<QFileDialog>();
        ASSERT_TRUE(panel);
        panel->selectFile(path);
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(panel, "accept");
        settle();
    }

    static void wait_saved(MainWindow& window)
    {
        window.document().disk().finish();
        settle();
    }

    static QStringList notice_buttons(const MainWindow& window)
    {
        QStringList texts;
        for (const QPushButton* button : window.findChild<DocumentNotice*>()->findChildren<QPushButton*>())
            texts.append(button->text());
        return texts;
    }

    static void press_notice(MainWindow& window, const char* text)
    {
        for (QPushButton* button : window.findChild<DocumentNotice*>()->findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(text)) {
                button->click();
                return settle();
            }
        FAIL() << "no button " << text;
    }

    /// What a synchronised folder does: another program writes the package in its own way.
    void write_from_outside(const char* name)
    {
        grants::GrantFile file;
        file.org.name = name;
        write_package(QFileInfo(path_).fileName(), grants::write_grant_file(file));
    }

    QString path_;
};

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

TEST_F(DocumentLifeTest, WhatAnInterruptedSaveHasLeftIsToldAndCanBeGoneBackTo)
{
    write_package(QStringLiteral(".~Pantry.quillfern-0123abcd~"), file_with_days({}));
    MainWindow& window = open_pantry();
    ASSERT_TRUE(window.model().state().toast);
    EXPECT_THAT(window.model().state().toast->text, testing::HasSubstr("Revert to Saved"));
    EXPECT_TRUE(is_enabled(window, "revert"));
}

TEST_F(DocumentLifeTest, LeavingTheProgramForAnotherOneSaves)
{
    MainWindow& window = open_pantry();
    rename_organization(window, "Second");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    wait_saved(window);
    EXPECT_EQ(name_on_disk(path_), "Second");
}

TEST_F(DocumentLifeTest, WhatOthersWriteIsNeverWrittenOver)
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

TEST_F(DocumentLifeTest, ReloadShowsTheOtherVersionAndUndoBringsThisOneBack)
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

TEST_F(DocumentLifeTest, ADocumentWhoseFileVanishesIsKeptAndCanBeSavedElsewhere)
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

TEST_F(DocumentLifeTest, AttachmentsThatOthersTakeAwayOrChangeDoNotKeepTheRestFromBeingSaved)
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

TEST_F(DocumentLifeTest, WhatAnotherProgramHasOpenCanBeReadButNotChanged)
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
