#include "app/window/board_open_dialog.h"

#include "desktop/last_folder.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace quillfern::app {

BoardOpenDialog::BoardOpenDialog(QWidget* parent)
    : PackageDialog(QStringLiteral("marrowind"), desktop::PackageModel::Listing::files, parent)
{
    setObjectName(QStringLiteral("boardOpenDialog"));
    setFileMode(QFileDialog::ExistingFile);
    setWindowTitle(QStringLiteral("Import a Marrowind Board"));
    setLabelText(QFileDialog::FileName, QStringLiteral("Name:"));
    setLabelText(QFileDialog::Accept, QStringLiteral("Import"));
    setLabelText(QFileDialog::FileType, QStringLiteral("Shown:"));
    setNameFilter(QStringLiteral("Marrowind boards (*.marrowind Board.json)"));
    // The toolkit takes a package for a folder, which has no place in the name field and is opened, not imported.
    connect(this, &QFileDialog::currentChanged, this, [this](const QString& path) {
        if (desktop::is_package(path, suffix()))
            name_field()->setText(QFileInfo(path).fileName());
    });
    connect(name_field(), &QLineEdit::textChanged, this, [this] {
        if (desktop::is_package(named_path(), suffix()))
            findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->setText(QStringLiteral("Import"));
    });
}

void BoardOpenDialog::accept()
{
    if (name_field()->text().isEmpty())
        return;
    const QString path = named_path();
    const QString package = desktop::package_around(path, suffix());
    if (!package.isEmpty())
        return activate_package(package);
    const QFileInfo info(path);
    if (info.isDir())
        return enter(path);
    if (info.exists())
        return activate_package(path);
    refuse(
        QStringLiteral("There is no file “%1”").arg(info.fileName()), QStringLiteral("Choose a file that is there."));
}

void BoardOpenDialog::activate_package(const QString& path)
{
    remember_folder(desktop::FolderOf::documents, path);
    QDialog::accept();
    Q_EMIT board_chosen(path);
}

} // namespace quillfern::app
