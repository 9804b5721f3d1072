#include "desktop/package_model.h"

#include "desktop/icons.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHash>

#include <memory>
#include <unordered_map>
#include <utility>

namespace quillfern::desktop {
namespace {

bool has_suffix(const QFileInfo& info, const QString& suffix)
{
    return info.isDir() && info.suffix().compare(suffix, Qt::CaseInsensitive) == 0;
}

class FileIcons : public QFileIconProvider {
public:
    explicit FileIcons(QString package_suffix) : suffix_(std::move(package_suffix)) { }

    QIcon icon(IconType type) const override
    {
        switch (type) {
        case Folder:
            return line_icon(QStringLiteral("folder"));
        case File:
            return line_icon(QStringLiteral("file"));
        default:
            return line_icon(QStringLiteral("computer"));
        }
    }

    QIcon icon(const QFileInfo& info) const override
    {
        if (has_suffix(info, suffix_))
            return application_icon();
        if (info.filePath() == QDir::homePath())
            return line_icon(QStringLiteral("home"));
        return icon(info.isDir() ? Folder : File);
    }

    QString type(const QFileInfo& info) const override
    {
        return has_suffix(info, suffix_) ? QStringLiteral("File") : QFileIconProvider::type(info);
    }

private:
    QString suffix_;
};

} // namespace

bool is_package(const QString& path, const QString& suffix)
{
    return has_suffix(QFileInfo(path), suffix);
}

QString package_around(const QString& path, const QString& suffix)
{
    QString at = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!is_package(at, suffix)) {
        const QString parent = QFileInfo(at).path();
        if (parent == at)
            return {};
        at = parent;
    }
    return at;
}

PackageModel::PackageModel(QString suffix, Listing listing, QObject* parent)
    : QSortFilterProxyModel(parent), suffix_(std::move(suffix)), listing_(listing)
{
}

bool PackageModel::hasChildren(const QModelIndex& parent) const
{
    return !is_package_at(mapToSource(parent)) && QSortFilterProxyModel::hasChildren(parent);
}

int PackageModel::rowCount(const QModelIndex& parent) const
{
    return is_package_at(mapToSource(parent)) ? 0 : QSortFilterProxyModel::rowCount(parent);
}

bool PackageModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (is_package_at(index))
        return listing_ != Listing::folders;
    return listing_ == Listing::files || QFileInfo(path_of(index)).isDir();
}

bool PackageModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto is_folder = [this](const QModelIndex& index) {
        return QFileInfo(path_of(index)).isDir() && !is_package_at(index);
    };
    if (is_folder(left) != is_folder(right))
        return is_folder(left);
    return QString::localeAwareCompare(left.data().toString(), right.data().toString()) < 0;
}

QString PackageModel::path_of(const QModelIndex& index) const
{
    const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
    return files && index.isValid() ? files->filePath(index) : QString();
}

bool PackageModel::is_package_at(const QModelIndex& index) const
{
    const QString path = path_of(index);
    return !path.isEmpty() && is_package(path, suffix_);
}

QAbstractFileIconProvider* file_icons(const QString& package_suffix)
{
    static std::unordered_map<QString, std::unique_ptr<FileIcons>> made;
    std::unique_ptr<FileIcons>& icons = made[package_suffix];
    if (!icons)
        icons = std::make_unique<FileIcons>(package_suffix);
    return icons.get();
}

} // namespace quillfern::desktop
