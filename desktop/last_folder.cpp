#include "desktop/last_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace quillfern::desktop {
namespace {

QString key_of(FolderOf kind)
{
    return kind == FolderOf::documents ? QStringLiteral("documents/folder") : QStringLiteral("save/folder");
}

} // namespace

QString last_folder(FolderOf kind)
{
    const QString folder = QSettings().value(key_of(kind)).toString();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& candidate : {folder, documents})
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir())
            return candidate;
    return QDir::homePath();
}

void remember_folder(FolderOf kind, const QString& file)
{
    QSettings().setValue(key_of(kind), QFileInfo(file).absolutePath());
}

} // namespace quillfern::desktop
