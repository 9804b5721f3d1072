#include "desktop/alert.h"
#include "desktop/save_panel.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quillfern::desktop {
namespace {

/// A folder with a package, a plain folder and a plain file, shown in a dialog.
class PackageDialogTest : public testing::Test {
protected:
    PackageDialogTest()
    {
        const QDir root(folder_.path());
        root.mkpath("Pantry.quillfern/Attachments");
        root.mkpath("Old files");
        QFile file(root.filePath("writing.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    ~PackageDialogTest() override { delete dialog_; }

    template <class Dialog>
    Dialog* show(Dialog* dialog, const QStringList& expected)
    {
        delete dialog_;
        dialog_ = dialog;
        dialog->setViewMode(QFileDialog::Detail);
        dialog->setDirectory(folder_.path());
        dialog->open();
        view_ = dialog->template findChild<QTreeView*>("treeView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return names() == expected; })) << names().join(", ").toStdString();
        return dialog;
    }

    PackageOpenDialog* show_open()
    {
        return show(
            new PackageOpenDialog("quillfern", "Quillfern organizations", nullptr), {"Old files", "Pantry.quillfern"});
    }

    QStringList names() const
    {
        QStringList shown;
        for (int row = 0; row < view_->model()->rowCount(view_->rootIndex()); ++row)
            shown.append(entry(row).data().toString());
        return shown;
    }

    QModelIndex entry(int row) const { return view_->model()->index(row, 0, view_->rootIndex()); }

    /// Types a name and confirms; returns what an alert says about it, and closes that.
    QString type(const QString& name)
    {
        dialog_->findChild<QLineEdit*>("fileNameEdit")->setText(name);
        QMetaObject::invokeMethod(dialog_, "accept");
        auto* alert = dialog_->findChild<Alert*>();
        const QString said = alert ? alert->findChild<QLabel*>("alertTitle")->text() : QString();
        delete alert;
        return said;
    }

    QString path(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    QPointer<QFileDialog> dialog_;
    QTreeView* view_ = nullptr;
};

TEST_F(PackageDialogTest, ShowsAPackageAsOneDocumentAfterTheFolders)
{
    show_open();
    EXPECT_FALSE(view_->model()->hasChildren(entry(1)));
}

TEST_F(PackageDialogTest, ReturnOnAPackageOpensItAndOnAFolderEntersIt)
{
    PackageOpenDialog* dialog = show_open();
    QSignalSpy chosen(dialog, &PackageOpenDialog::package_chosen);
    view_->setCurrentIndex(entry(0));
    QTest::keyClick(view_, Qt::Key_Return);
    EXPECT_EQ(dialog->directory().dirName(), "Old files");
    EXPECT_EQ(chosen.count(), 0);

    dialog->setDirectory(folder_.path());
    ASSERT_TRUE(QTest::qWaitFor([this] { return names().size() == 2; }));
    view_->setCurrentIndex(entry(1));
    QTest::keyClick(view_, Qt::Key_Return);
    dialog->open();
    view_->setCurrentIndex({});
    view_->setCurrentIndex(entry(1));
    dialog->accept(); // as by the button
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(chosen[0][0].toString(), path("Pantry.quillfern"));
    EXPECT_EQ(chosen[1][0].toString(), path("Pantry.quillfern"));
}

TEST_F(PackageDialogTest, ATypedNameThatIsNoPackageIsNotCalledMissing)
{
    QFile file(path("Mailed.quillfern"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    PackageOpenDialog* dialog = show_open();
    QSignalSpy chosen(dialog, &PackageOpenDialog::package_chosen);
    EXPECT_EQ(type("Nowhere.quillfern"), "There is no file “Nowhere.quillfern”");
    EXPECT_EQ(type("writing.txt"), "“writing.txt” is not a .quillfern file");
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(type("Mailed.quillfern"), "") << "reading it says what is wrong";
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(PackageDialogTest, ADocumentIsSavedBesideOthersAndNeverInsideOne)
{
    const auto panel = [this] {
        return show(new PackageSavePanel("Quillfern organizations", "Harbor Arts", folder_.path(), nullptr),
            {"Old files", "Pantry.quillfern"});
    };
    const std::pair<QString, QString> cases[] = {
        {"Harbor Arts", path("Harbor Arts.quillfern")},
        {"Dr. Lee", path("Dr. Lee.quillfern")},
        {"Pantry.quillfern", path("Pantry.quillfern")}, // whether to replace it is asked by who saves
        {path("Old files/Arts.Quillfern"), path("Old files/Arts.Quillfern")},
    };
    for (const auto& [typed, saved] : cases) {
        QSignalSpy chosen(panel(), &PackageSavePanel::path_chosen);
        EXPECT_EQ(type(typed), "");
        ASSERT_EQ(chosen.count(), 1) << typed.toStdString();
        EXPECT_EQ(chosen[0][0].toString(), saved);
    }

    QSignalSpy chosen(panel(), &PackageSavePanel::path_chosen);
    EXPECT_EQ(dialog_->findChild<QLineEdit*>("fileNameEdit")->text(), "Harbor Arts.quillfern");
    view_->setCurrentIndex(entry(1));
    EXPECT_EQ(dialog_->findChild<QLineEdit*>("fileNameEdit")->text(), "Pantry.quillfern");
    QTest::keyClick(view_, Qt::Key_Return);
    EXPECT_EQ(dialog_->directory().absolutePath(), folder_.path());
    EXPECT_EQ(type("Pantry.quillfern/Inner"), "“Pantry.quillfern” is a file, not a folder");
    EXPECT_EQ(type("gone/Inner"), "There is no folder “gone”");
    EXPECT_EQ(type("Old files"), "");
    EXPECT_EQ(dialog_->directory().dirName(), "Old files");
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(PackageDialogTest, AFolderToMoveToIsNoDocument)
{
    auto* chooser = show(new FolderChooser("quillfern", "Move To", "Move", nullptr), {"Old files"});
    QSignalSpy chosen(chooser, &FolderChooser::folder_chosen);
    EXPECT_EQ(type("Pantry.quillfern"), "“Pantry.quillfern” is a file, not a folder");
    EXPECT_EQ(type(path("Pantry.quillfern/Attachments")), "“Pantry.quillfern” is a file, not a folder");
    EXPECT_EQ(type("gone"), "There is no folder “gone”");
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(type(path("Old files")), "");
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), path("Old files"));

    QSignalSpy here(
        show(new FolderChooser("quillfern", "Move To", "Move", nullptr), {"Old files"}), &FolderChooser::folder_chosen);
    EXPECT_EQ(type(""), "");
    ASSERT_EQ(here.count(), 1);
    EXPECT_EQ(here[0][0].toString(), folder_.path());
}

TEST_F(PackageDialogTest, AnExportIsNotSavedIntoADocument)
{
    auto* panel =
        show(new SavePanel("Texts", "txt", "dates", nullptr), {"Old files", "Pantry.quillfern", "writing.txt"});
    QSignalSpy chosen(panel, &SavePanel::path_chosen);
    EXPECT_EQ(type("Pantry.quillfern/dates"), "“Pantry.quillfern” is a file, not a folder");
    EXPECT_EQ(type("dates"), "");
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), path("dates.txt"));
}

} // namespace
} // namespace quillfern::desktop
