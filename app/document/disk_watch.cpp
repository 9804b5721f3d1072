#include "app/document/disk_watch.h"

#include <QFileInfo>

namespace quillfern::app {
namespace {

constexpr std::chrono::milliseconds calm_after_a_change(400);

} // namespace

DiskWatch::DiskWatch()
{
    calm_.setSingleShot(true);
    calm_.setInterval(calm_after_a_change);
    connect(&calm_, &QTimer::timeout, this, [this] {
        rearm();
        Q_EMIT stirred();
    });
}

void DiskWatch::watch(const QString& package)
{
    package_ = package;
    // Not before the event loop runs: setting up the watcher would delay the first paint.
    QTimer::singleShot(0, this, &DiskWatch::rearm);
}

/// A save puts another folder in the place of the one that was watched.
void DiskWatch::rearm()
{
    watcher_ = std::make_unique<QFileSystemWatcher>();
    for (const QString& path : {QFileInfo(package_).path(), package_, package_ + QLatin1String("/Quillfern.json")})
        if (QFileInfo::exists(path))
            watcher_->addPath(path);
    connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, &calm_, qOverload<>(&QTimer::start));
    connect(watcher_.get(), &QFileSystemWatcher::fileChanged, &calm_, qOverload<>(&QTimer::start));
}

} // namespace quillfern::app
