#pragma once

#include <QFileIconProvider>
#include <QSortFilterProxyModel>
#include <QString>

namespace quillfern::desktop {

/// Whether the path is a folder with the ending of packages: a document that is a folder on disk. `suffix` is without
/// the dot.
bool is_package(const QString& path, const QString& suffix);

/// The package that the path names or lies in; empty: none.
QString package_around(const QString& path, const QString& suffix);

/// What a file dialog lists: folders first, and packages as files, which have no children.
class PackageModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    enum class Listing {
        folders, ///< nothing but places to put something
        packages, ///< and packages
        files, ///< and packages and files
    };

    PackageModel(QString suffix, Listing listing, QObject* parent);

    bool hasChildren(const QModelIndex& parent) const override;
    int rowCount(const QModelIndex& parent) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QString path_of(const QModelIndex& index) const;
    bool is_package_at(const QModelIndex& index) const;

    QString suffix_;
    Listing listing_;
};

/// Our icons for what a file dialog lists; packages show the application's mark. They live as long as the program: a
/// dialog's model reads them in a thread of its own.
QAbstractFileIconProvider* file_icons(const QString& package_suffix);

} // namespace quillfern::desktop
