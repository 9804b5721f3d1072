#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <memory>

namespace quillfern::app {

/// Says when something may have happened to a document's folder. It is a hint only: it speaks up for our own saves,
/// too, and says nothing on disks that send no word.
class DiskWatch : public QObject {
    Q_OBJECT
public:
    DiskWatch();

    /// From now on this folder; the one before is left alone.
    void watch(const QString& package);

Q_SIGNALS:
    void stirred();

private:
    void rearm();

    QString package_;
    std::unique_ptr<QFileSystemWatcher> watcher_;
    QTimer calm_; ///< programs write a package in many steps
};

} // namespace quillfern::app
