#pragma once

#include "platform/package_watch.h"

#include <QObject>

class QWidget;

namespace quillfern::app {

class Application;
class OpenDocument;
class WindowModel;

/// Gives the file of a document that has one another name or another folder, while it is open. The document, its lock,
/// its earlier versions and its place among the recent documents go with it.
class DocumentMover : public QObject {
    Q_OBJECT
public:
    DocumentMover(OpenDocument& document, WindowModel& model, Application& application, QWidget& window);

    void rename();
    void move_to();

Q_SIGNALS:
    /// It was not moved, because what stands on the disk is no longer what this window knows.
    void changed_outside(platform::PackageChange change);

private:
    void move_file(const QString& path);
    void tell_moved(const QString& from, const QString& to);

    OpenDocument& document_;
    WindowModel& model_;
    Application& application_;
    QWidget& window_;
};

} // namespace quillfern::app
