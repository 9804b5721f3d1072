#pragma once

#include "app/day_watch.h"
#include "app/document/document_source.h"
#include "app/document/storage.h"
#include "app/help/help_desk.h"
#include "app/settings/preferences.h"
#include "app/settings/recent_documents.h"
#include "app/settings/settings_file.h"
#include "app/state/app_model.h"
#include "grants/recovery_store.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>

namespace quillfern::app {

class MainWindow;
class OpenDocument;
class SettingsWindow;
class StartWindow;
class WindowModel;

/// What the program works with.
struct Surroundings {
    DocumentSource& source;
    DayWatch::Clock clock;
    std::string state_folder; ///< for earlier versions and recovery
    Pace pace = {};
    QString settings_file = SettingsFile::default_path();
};

/// The running program: its open documents, one window each, and how they come and go.
class Application : public QObject {
    Q_OBJECT
public:
    explicit Application(Surroundings surroundings, QObject* parent = nullptr);
    ~Application() override;

    /// Opens the package, or raises the window that shows it already. A package that is refused opens no window: an
    /// alert above `asking` (which may be null) says why.
    void open(const QString& path, QWidget* asking);

    /// An empty document with the user's defaults.
    void new_document();

    /// A new document with the sample organization, dated around today.
    void open_sample();

    /// A new document with the value of this one.
    void open_copy(const OpenDocument& original);

    void choose_file(QWidget* asking);

    /// Opens a window on what a crash had left of a document; the file itself is not touched.
    void open_recovered(grants::FoundRecovery found, QWidget* asking);

    /// What the program shows when no document is asked for.
    void show_start();

    void show_settings();

    /// The user has left the welcome sheet, in whatever way.
    void end_welcome(WindowModel& model);

    /// Closes every window, asking where something would be lost, and ends the program unless the user stays.
    void quit();

    /// Writes down everything that is not saved, at once and without a question.
    void put_in_safety();

    const QList<MainWindow*>& windows() const { return windows_; }

    /// The window that a question belongs to: the active one or, before the desktop has made one active, the newest.
    QWidget* front() const;
    DayWatch& day_watch() { return day_watch_; }
    HelpDesk& help_desk() { return help_desk_; }
    Storage& storage() { return storage_; }
    Preferences& preferences() { return preferences_; }
    RecentDocuments& recent_documents() { return recent_; }

Q_SIGNALS:
    void window_shown(QWidget* window);

private:
    MainWindow* window_of(const QString& path) const;
    MainWindow& show_document(std::unique_ptr<OpenDocument> document);
    void refuse(const grants::PackageError& error, const QString& path, QWidget* asking);
    void greet(WindowModel& model);
    void tell_settings_problem(WindowModel& model);
    std::unique_ptr<OpenDocument> read_quietly(const QString& path);
    void close_next();
    void save_all();

    DocumentSource& source_;
    DayWatch day_watch_;
    Storage storage_;
    SettingsFile settings_file_;
    Preferences preferences_;
    RecentDocuments recent_;
    AppModel model_;
    HelpDesk help_desk_;
    QList<MainWindow*> windows_;
    QPointer<StartWindow> start_;
    QPointer<SettingsWindow> settings_window_;
    bool quitting_ = false;
    bool settings_problem_told_ = false;
};

} // namespace quillfern::app
