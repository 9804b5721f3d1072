#pragma once

#include "app/app_model.h"
#include "app/day_watch.h"
#include "app/document_source.h"
#include "app/help_desk.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

namespace quillfern::app {

class Document;
class MainWindow;
class StartWindow;

/// The running program: its open documents, one window each, and how they come and go.
class Application : public QObject {
    Q_OBJECT
public:
    Application(DocumentSource& source, DayWatch::Clock clock, QObject* parent = nullptr);
    ~Application() override;

    /// Opens the package, or raises the window that shows it already. A package that is refused opens no window: an
    /// alert above `asking` (which may be null) says why.
    void open(const QString& path, QWidget* asking);

    /// Opens a new document with the sample organization, dated around today.
    void open_sample();

    void choose_file(QWidget* asking);

    /// The window that offers what to open, when no document is asked for.
    void show_start();

    const QList<MainWindow*>& windows() const { return windows_; }
    DayWatch& day_watch() { return day_watch_; }
    HelpDesk& help_desk() { return help_desk_; }

Q_SIGNALS:
    void window_shown(QWidget* window);

private:
    MainWindow* window_of(const QString& path) const;
    void show_document(std::unique_ptr<Document> document);
    void refuse(const grants::PackageError& error, const QString& path, QWidget* asking);

    DocumentSource& source_;
    DayWatch day_watch_;
    AppModel model_;
    HelpDesk help_desk_;
    QList<MainWindow*> windows_;
    QPointer<StartWindow> start_;
};

} // namespace quillfern::app
