#include "app/document.h"

#include <QFileInfo>

#include <utility>

namespace quillfern::app {

Document::Document(grants::OrgPackage package, QObject* parent) : QObject(parent)
{
    opened_.package = std::move(package);
}

Document::Document(grants::OpenedPackage opened, QString path, QObject* parent)
    : QObject(parent), opened_(std::move(opened)), path_(std::move(path))
{
}

QString Document::title() const
{
    if (!file().org.name.empty())
        return QString::fromStdString(file().org.name);
    return path_.isEmpty() ? QStringLiteral("Untitled") : QFileInfo(path_).completeBaseName();
}

} // namespace quillfern::app
