#include "desktop/package_dialog.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <utility>

namespace quillfern::desktop {
namespace {

bool has_suffix(const QFileInfo& info, const QString& suffix)
{
    return info.isDir() && info.suffix().compare(suffix, Qt::CaseInsensitive) == 0;
}

/// Shows folders and packages only, packages as childless files after the folders.
class PackageFilter : public QSortFilterProxyModel {
public:
    PackageFilter(QString suffix, QObject* parent) : QSortFilterProxyModel(parent), suffix_(std::move(suffix)) { }

    bool hasChildren(const QModelIndex& parent) const override
    {
        return !is_package(mapToSource(parent)) && QSortFilterProxyModel::hasChildren(parent);
    }

    int rowCount(const QModelIndex& parent) const override
    {
        return is_package(mapToSource(parent)) ? 0 : QSortFilterProxyModel::rowCount(parent);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DecorationRole && index.column() == 0 && is_package(mapToSource(index)))
            return QFileIconProvider().icon(QFileIconProvider::File);
        return QSortFilterProxyModel::data(index, role);
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QFileInfo info = info_of(sourceModel()->index(row, 0, parent));
        return info.isDir();
    }

    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        const bool left_package = is_package(left);
        if (left_package != is_package(right))
            return !left_package;
        const QString a = left.data().toString();
        const QString b = right.data().toString();
        return QString::localeAwareCompare(a, b) < 0;
    }

private:
    QFileInfo info_of(const QModelIndex& index) const
    {
        const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
        return files && index.isValid() ? files->fileInfo(index) : QFileInfo();
    }

    bool is_package(const QModelIndex& index) const { return has_suffix(info_of(index), suffix_); }

    QString suffix_;
};

} // namespace

PackageOpenDialog::PackageOpenDialog(QString suffix, const QString& kind, QWidget* parent)
    : QFileDialog(parent), suffix_(std::move(suffix))
{
    setObjectName(QStringLiteral("openDialog"));
    setOption(QFileDialog::DontUseNativeDialog); // first: the options below then reach the toolkit's own dialog
    setFileMode(QFileDialog::Directory);
    setOption(QFileDialog::ShowDirsOnly, false);
    setWindowTitle(QStringLiteral("Open"));
    setLabelText(QFileDialog::Accept, QStringLiteral("Open"));
    setLabelText(QFileDialog::FileType, QStringLiteral("Shown:"));
    setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind, suffix_));
    setProxyModel(new PackageFilter(suffix_, this));
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    last_folder_ = directory().absolutePath();
    for (QAbstractItemView* view : findChildren<QAbstractItemView*>())
        if (qobject_cast<QListView*>(view) || qobject_cast<QTreeView*>(view)) {
            view->installEventFilter(this);
            view->viewport()->installEventFilter(this);
        }
    connect(this, &QFileDialog::directoryEntered, this, [this](const QString& folder) {
        if (!is_package(folder)) {
            last_folder_ = folder;
            return;
        }
        setDirectory(last_folder_);
        choose(folder);
    });
}

bool PackageOpenDialog::is_package(const QString& path) const
{
    return has_suffix(QFileInfo(path), suffix_);
}

QString PackageOpenDialog::current_path(const QAbstractItemView* view) const
{
    const QModelIndex index = view->currentIndex();
    return index.siblingAtColumn(0).data(QFileSystemModel::FilePathRole).toString();
}

bool PackageOpenDialog::eventFilter(QObject* watched, QEvent* event)
{
    auto* view = qobject_cast<QAbstractItemView*>(watched);
    if (!view)
        view = qobject_cast<QAbstractItemView*>(watched->parent());
    bool opens = event->type() == QEvent::MouseButtonDblClick;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        opens = key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    if (view && opens && is_package(current_path(view))) {
        choose(current_path(view));
        return true;
    }
    return QFileDialog::eventFilter(watched, event);
}

void PackageOpenDialog::accept()
{
    const QStringList chosen = selectedFiles();
    if (chosen.size() == 1 && is_package(chosen.front()))
        return choose(chosen.front());
    if (chosen.size() == 1 && QFileInfo(chosen.front()).isDir())
        return setDirectory(chosen.front());
    QFileDialog::accept();
}

void PackageOpenDialog::choose(const QString& path)
{
    QDialog::accept();
    Q_EMIT package_chosen(path);
}

} // namespace quillfern::desktop
