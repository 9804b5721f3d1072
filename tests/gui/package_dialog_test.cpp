#include "desktop/package_dialog.h"

#include <QAbstractProxyModel>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace quillfern::desktop {
namespace {

/// A folder with a package, a plain folder and a plain file, shown in the dialog.
class PackageDialogTest : public testing::Test {
protected:
    PackageDialogTest()
    {
        const QDir root(folder_.path());
        root.mkpath("Pantry.quillfern/Attachments");
        root.mkpath("Old files");
        QFile file(root.filePath("letter.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        dialog_ = new PackageOpenDialog("quillfern", "Quillfern organizations", nullptr);
        dialog_->setViewMode(QFileDialog::Detail);
        dialog_->setDirectory(folder_.path());
        dialog_->open();
        view_ = dialog_->findChild<QTreeView*>();
        EXPECT_TRUE(QTest::qWaitFor([this] { return names().size() == 2; }));
    }

    ~PackageDialogTest() override { delete dialog_; }

    QStringList names() const
    {
        QStringList shown;
        for (int row = 0; row < view_->model()->rowCount(view_->rootIndex()); ++row)
            shown.append(entry(row).data().toString());
        return shown;
    }

    QModelIndex entry(int row) const { return view_->model()->index(row, 0, view_->rootIndex()); }

    QTemporaryDir folder_;
    QPointer<PackageOpenDialog> dialog_;
    QTreeView* view_ = nullptr;
};

TEST_F(PackageDialogTest, ShowsAPackageAsOneDocumentAfterTheFolders)
{
    EXPECT_EQ(names(), QStringList({"Old files", "Pantry.quillfern"}));
    EXPECT_FALSE(view_->model()->hasChildren(entry(1)));
}

TEST_F(PackageDialogTest, ReturnOnAPackageOpensItAndOnAFolderEntersIt)
{
    QSignalSpy chosen(dialog_, &PackageOpenDialog::package_chosen);
    view_->setCurrentIndex(entry(0));
    QTest::keyClick(view_, Qt::Key_Return);
    EXPECT_EQ(dialog_->directory().dirName(), "Old files");
    EXPECT_EQ(chosen.count(), 0);

    dialog_->setDirectory(folder_.path());
    ASSERT_TRUE(QTest::qWaitFor([this] { return names().size() == 2; }));
    view_->setCurrentIndex(entry(1));
    QTest::keyClick(view_, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(QDir(chosen[0][0].toString()).dirName(), "Pantry.quillfern");
}

} // namespace
} // namespace quillfern::desktop
