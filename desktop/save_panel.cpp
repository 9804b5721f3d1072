#include "desktop/save_panel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace quillfern::desktop {
namespace {

const QString package_suffix = QStringLiteral("quillfern");

QString with_suffix(const QString& path, const QString& suffix)
{
    return path.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive) ? path : path + QLatin1Char('.') + suffix;
}

} // namespace

SavePanel::SavePanel(const QString& kind, const QString& suffix, const QString& name, QWidget* parent)
    : SavePanel({kind, suffix, name, FolderOf::exports, PackageModel::Listing::files}, parent)
{
    setObjectName(QStringLiteral("savePanel"));
}

SavePanel::SavePanel(const Saved& saved, QWidget* parent)
    : PackageDialog(package_suffix, saved.listing, parent), saved_(saved)
{
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setWindowTitle(QStringLiteral("Save"));
    // The toolkit calls the button Open once the name is a folder's, and a package is one.
    connect(name_field(), &QLineEdit::textChanged, this, [this] {
        auto* buttons = findChild<QDialogButtonBox*>();
        if (is_package(named_path(), suffix()))
            buttons->button(QDialogButtonBox::Save)->setText(QStringLiteral("Save"));
    });
    setLabelText(FileName, QStringLiteral("Name:"));
    setLabelText(FileType, QStringLiteral("Shown:"));
    setNameFilter(QStringLiteral("%1 (*.%2)").arg(saved.kind, saved.suffix));
    setDirectory(last_folder(saved.folder));
    selectFile(with_suffix(saved.name, saved.suffix));
}

/// A name that is a folder's leads into it, as in every save panel.
void SavePanel::accept()
{
    const QString named = named_path();
    if (name_field()->text().isEmpty())
        return;
    if (QFileInfo(named).isDir() && !is_package(named, suffix()))
        return enter(named);
    const QString target = with_suffix(named, saved_.suffix);
    if (!can_hold_files(QFileInfo(target).path()))
        return;
    remember_folder(saved_.folder, target);
    QDialog::accept();
    Q_EMIT path_chosen(target);
}

void SavePanel::activate_package(const QString& path)
{
    can_hold_files(path); // which says why not
}

PackageSavePanel::PackageSavePanel(const QString& kind, const QString& name, const QString& folder, QWidget* parent)
    : SavePanel({kind, package_suffix, name, FolderOf::documents, PackageModel::Listing::packages}, parent)
{
    setObjectName(QStringLiteral("packageSavePanel"));
    if (QFileInfo(folder).isDir())
        setDirectory(folder);
    connect(this, &QFileDialog::currentChanged, this, [this](const QString& path) {
        if (is_package(path, suffix()))
            PackageSavePanel::activate_package(path);
    });
}

void PackageSavePanel::activate_package(const QString& path)
{
    name_field()->setText(QFileInfo(path).fileName());
}

} // namespace quillfern::desktop
