#include "app/document/package_path.h"

#include <QDir>
#include <QFileInfo>

namespace quillfern::app {

QString package_path(const QString& path)
{
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (info.fileName() == QLatin1String("Quillfern.json"))
        info = QFileInfo(info.path());
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.filePath() : canonical;
}

} // namespace quillfern::app
