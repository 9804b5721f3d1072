#include "desktop/package_dialog.h"

#include "desktop/alert.h"
#include "desktop/last_folder.h"
#include "desktop/scrim.h"
#include "desktop/type.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QTreeView>

#include <utility>

namespace quillfern::desktop {

PackageDialog::PackageDialog(QString suffix, PackageModel::Listing listing, QWidget* parent)
    : QFileDialog(parent), suffix_(std::move(suffix))
{
    setOption(QFileDialog::DontUseNativeDialog); // first: the options below then reach the toolkit's own dialog
    setIconProvider(file_icons(suffix_));
    setProxyModel(new PackageModel(suffix_, listing, this));
    setDirectory(last_folder(FolderOf::documents));
    resize(scaled(760), scaled(480));
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    Scrim::put_under(this);
    last_folder_ = directory().absolutePath();
    field_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    give_room_to_names();
    for (QAbstractItemView* view : findChildren<QAbstractItemView*>())
        if (qobject_cast<QListView*>(view) || qobject_cast<QTreeView*>(view)) {
            view->installEventFilter(this);
            view->viewport()->installEventFilter(this);
        }
    connect(this, &QFileDialog::directoryEntered, this, [this](const QString& folder) {
        const QString package = package_around(folder, suffix_);
        if (package.isEmpty()) {
            last_folder_ = folder;
            return;
        }
        setDirectory(last_folder_);
        activate_package(package);
    });
}

void PackageDialog::give_room_to_names()
{
    auto* table = findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!table)
        return;
    table->header()->setStretchLastSection(false);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

QString PackageDialog::current_path(const QAbstractItemView* view) const
{
    const QModelIndex index = view->currentIndex();
    return index.siblingAtColumn(0).data(QFileSystemModel::FilePathRole).toString();
}

/// The field alone counts: a click on an entry puts its name there, and a typed name that the list does not show leaves
/// the toolkit's own selection somewhere else.
QString PackageDialog::named_path() const
{
    QString name = field_->text();
    if (name == QLatin1String("~") || name.startsWith(QLatin1String("~/")))
        name.replace(0, 1, QDir::homePath());
    return QDir::cleanPath(directory().absoluteFilePath(name));
}

void PackageDialog::enter(const QString& folder)
{
    setDirectory(folder);
    field_->clear();
}

bool PackageDialog::can_hold_files(const QString& folder)
{
    const QString package = package_around(folder, suffix_);
    if (!package.isEmpty())
        refuse(QStringLiteral("“%1” is a file, not a folder").arg(QFileInfo(package).fileName()),
            QStringLiteral("Choose a folder beside it."));
    else if (!QFileInfo(folder).isDir())
        refuse(QStringLiteral("There is no folder “%1”").arg(QFileInfo(folder).fileName()),
            QStringLiteral("Choose a folder that is there, or make a new one."));
    else
        return true;
    return false;
}

void PackageDialog::refuse(const QString& title, const QString& message)
{
    show_alert({title, message, {}}, this);
}

bool PackageDialog::eventFilter(QObject* watched, QEvent* event)
{
    auto* view = qobject_cast<QAbstractItemView*>(watched);
    if (!view)
        view = qobject_cast<QAbstractItemView*>(watched->parent());
    bool opens = event->type() == QEvent::MouseButtonDblClick;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        opens = key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    if (view && opens && is_package(current_path(view), suffix_)) {
        activate_package(current_path(view));
        return true;
    }
    return QFileDialog::eventFilter(watched, event);
}

PackageOpenDialog::PackageOpenDialog(const QString& suffix, const QString& kind, QWidget* parent)
    : PackageDialog(suffix, PackageModel::Listing::packages, parent)
{
    setObjectName(QStringLiteral("openDialog"));
    setFileMode(QFileDialog::Directory);
    setOption(QFileDialog::ShowDirsOnly, false);
    setWindowTitle(QStringLiteral("Open"));
    setLabelText(QFileDialog::FileName, QStringLiteral("Name:"));
    setLabelText(QFileDialog::Accept, QStringLiteral("Open"));
    setLabelText(QFileDialog::FileType, QStringLiteral("Shown:"));
    setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind, suffix));
}

void PackageOpenDialog::accept()
{
    const QString path = named_path();
    const QString package = package_around(path, suffix());
    if (!package.isEmpty())
        return activate_package(package);
    const QFileInfo file(path);
    if (file.isDir())
        return enter(path);
    if (!file.exists())
        return refuse(QStringLiteral("There is no file “%1”").arg(file.fileName()),
            QStringLiteral("Choose a file that is there."));
    if (file.suffix().compare(suffix(), Qt::CaseInsensitive) == 0)
        return activate_package(path); // not a folder, as it should be: reading it says what is wrong
    refuse(QStringLiteral("“%1” is not a .%2 file").arg(file.fileName(), suffix()),
        QStringLiteral("Choose a file of that kind."));
}

void PackageOpenDialog::activate_package(const QString& path)
{
    remember_folder(FolderOf::documents, path);
    QDialog::accept();
    Q_EMIT package_chosen(path);
}

FolderChooser::FolderChooser(const QString& suffix, const QString& title, const QString& verb, QWidget* parent)
    : PackageDialog(suffix, PackageModel::Listing::folders, parent)
{
    setObjectName(QStringLiteral("folderChooser"));
    setFileMode(QFileDialog::Directory);
    setWindowTitle(title);
    setLabelText(QFileDialog::FileName, QStringLiteral("Folder:"));
    setLabelText(QFileDialog::Accept, verb);
    for (const char* only_choice : {"fileTypeLabel", "fileTypeCombo"})
        if (auto* widget = findChild<QWidget*>(QLatin1String(only_choice)))
            widget->hide();
}

void FolderChooser::accept()
{
    const QString folder = named_path();
    if (!can_hold_files(folder))
        return;
    remember_folder(FolderOf::documents, QDir(folder).filePath(suffix()));
    QDialog::accept();
    Q_EMIT folder_chosen(folder);
}

void FolderChooser::activate_package(const QString& path)
{
    can_hold_files(path); // which says why not
}

} // namespace quillfern::desktop
