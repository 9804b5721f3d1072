#include "app/application.h"

#include "app/document/open_document.h"
#include "app/document/package_path.h"
#include "app/first_paint.h"
#include "app/settings/settings_window.h"
#include "app/start_window.h"
#include "app/window/main_window.h"
#include "app/window/window_spot.h"
#include "desktop/alert.h"
#include "desktop/package_dialog.h"
#include "desktop/qt_text.h"
#include "grants/package_messages.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::to_qt;

/// Says what of the file could not be used as it stands; the file itself is as it was.
void tell_notes(MainWindow& window)
{
    constexpr std::size_t most_sentences = 8;
    const ReadNotes& notes = window.document().notes();
    if (notes.empty())
        return;
    QStringList sentences;
    for (std::size_t i = 0; i < std::min(notes.size(), most_sentences); ++i)
        sentences.append(to_qt(notes[i]));
    if (notes.size() > most_sentences)
        sentences.append(QStringLiteral("… and %1 more").arg(notes.size() - most_sentences));
    desktop::show_alert({QStringLiteral("Some of this file couldn’t be read."),
                            QStringLiteral("What is listed here was left out or took its usual value. The rest is "
                                           "complete, and nothing in the file was changed."),
                            sentences.join(QLatin1Char('\n'))},
        &window);
}

void tell_leftovers(MainWindow& window)
{
    if (window.document().disk().leftovers() > 0)
        window.model().tell("An interrupted save had left another state: see File › Revert to Saved.");
}

} // namespace

Application::Application(Surroundings surroundings, QObject* parent)
    : QObject(parent), source_(surroundings.source), day_watch_(std::move(surroundings.clock)),
      storage_(surroundings.state_folder, surroundings.pace), settings_file_(surroundings.settings_file),
      preferences_(settings_file_), recent_(settings_file_), help_desk_(*this, model_)
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive)
            save_all();
    });
}

Application::~Application()
{
    qDeleteAll(std::exchange(windows_, {})); // each takes itself off the list
    delete start_;
    delete settings_window_;
}

void Application::open(const QString& path, QWidget* asking)
{
    const QString package = package_path(path);
    if (MainWindow* window = window_of(package))
        return window->come_forward();
    auto opened = source_.read(package);
    if (!opened)
        return refuse(opened.error(), package, asking);
    recent_.add(package);
    show_document(std::make_unique<OpenDocument>(*std::move(opened), package, storage_));
}

void Application::new_document()
{
    const PreferenceValues& values = preferences_.values();
    show_document(std::make_unique<OpenDocument>(
        app::new_document({values.defaultFiscalStart, values.defaultDraftLead}), storage_));
}

void Application::open_sample()
{
    show_document(std::make_unique<OpenDocument>(QuillfernDocument{source_.sample(day_watch_.today())}, storage_));
}

void Application::open_copy(const OpenDocument& original)
{
    auto copy = std::make_unique<OpenDocument>(duplicate_of(original.document().value()), storage_);
    copy->document().set_unsaved();
    show_document(std::move(copy));
}

void Application::open_recovered(grants::FoundRecovery found, QWidget* asking)
{
    const QString path = QFile::decodeName(QByteArray::fromStdString(found.info.path));
    MainWindow* window = path.isEmpty() ? nullptr : window_of(path);
    auto document = path.isEmpty() || window ? nullptr : read_quietly(path);
    OpenDocument* present = window ? &window->document() : document.get();
    const auto* saved = present && present->document().saved() ? &present->document().saved()->package : nullptr;
    auto recovered = found.slot.read(saved);
    if (!recovered) {
        desktop::show_alert({QStringLiteral("“%1” couldn’t be recovered").arg(to_qt(found.info.title)),
                                QStringLiteral("What was kept of it stays where it is."), to_qt(recovered.error())},
            asking);
        return;
    }
    const bool continues = saved && !present->document().is_modified() && present->disk().is_writable()
        && (present->disk().base() == found.info.base || recovered->package == *saved);
    if (continues) {
        present->take_recovered(std::move(found.slot), std::move(*recovered));
    } else {
        document = std::make_unique<OpenDocument>(duplicate_of({std::move(recovered->package)}), storage_);
        document->take_recovered(std::move(found.slot), {document->document().package(), recovered->notes});
    }
    if (document)
        show_document(std::move(document));
    else
        window->come_forward();
}

void Application::choose_file(QWidget* asking)
{
    auto* dialog =
        new desktop::PackageOpenDialog(QStringLiteral("quillfern"), QStringLiteral("Quillfern organizations"), asking);
    connect(dialog, &desktop::PackageOpenDialog::package_chosen, this,
        [this, above = QPointer<QWidget>(asking)](const QString& path) { open(path, above); });
    dialog->open();
}

void Application::show_start()
{
    if (!preferences_.values().welcomeDone)
        return new_document();
    if (!start_)
        start_ = new StartWindow(*this, &recent_);
    start_->show();
    Q_EMIT window_shown(start_);
}

void Application::show_settings()
{
    if (!settings_window_) {
        settings_window_ = new SettingsWindow(*this, preferences_);
        place_over(*settings_window_, QApplication::activeWindow());
    }
    settings_window_->show();
    settings_window_->come_forward();
}

/// The document at the path, or nothing when it cannot be read: then what was kept stands alone.
std::unique_ptr<OpenDocument> Application::read_quietly(const QString& path)
{
    auto opened = source_.read(path);
    return opened ? std::make_unique<OpenDocument>(*std::move(opened), path, storage_) : nullptr;
}

void Application::quit()
{
    quitting_ = true;
    close_next();
}

/// One window after the other: each may have a question, and the answer may be to stay.
void Application::close_next()
{
    if (!quitting_)
        return;
    if (!windows_.isEmpty()) {
        windows_.back()->close();
        return; // goes on once that window is gone
    }
    QApplication::closeAllWindows();
    QCoreApplication::quit();
}

void Application::save_all()
{
    for (MainWindow* window : windows_)
        window->document().save_by_itself();
}

void Application::put_in_safety()
{
    for (MainWindow* window : windows_)
        window->document().put_in_safety();
}

MainWindow* Application::window_of(const QString& path) const
{
    for (MainWindow* window : windows_)
        if (window->document().disk().path() == path)
            return window;
    return nullptr;
}

MainWindow& Application::show_document(std::unique_ptr<OpenDocument> document)
{
    auto* window = new MainWindow(*this, std::move(document));
    windows_.append(window);
    connect(window, &QObject::destroyed, this, [this, window] {
        windows_.removeOne(window);
        close_next();
    });
    connect(window, &MainWindow::stays_open, this, [this] { quitting_ = false; });
    window->show();
    FirstPaint::after(*window, [this, window] { greet(window->model()); }); // a sheet must not make the start slower
    if (start_)
        start_->close();
    Q_EMIT window_shown(window);
    tell_notes(*window);
    tell_leftovers(*window);
    return *window;
}

void Application::greet(WindowModel& model)
{
    if (preferences_.values().welcomeDone)
        tell_settings_problem(model);
    else
        model.edit([](WindowState& state) { state.sheet = sheet::Plain::welcome; });
}

void Application::end_welcome(WindowModel& model)
{
    preferences_.edit([](PreferenceValues& values) { values.welcomeDone = true; });
    tell_settings_problem(model); // not while the sheet was above it
}

/// The settings are those of all windows: one of them tells, once.
void Application::tell_settings_problem(WindowModel& model)
{
    if (preferences_.problem().isEmpty() || std::exchange(settings_problem_told_, true))
        return;
    model.tell(preferences_.problem().toStdString());
}

QWidget* Application::front() const
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    return windows_.isEmpty() ? static_cast<QWidget*>(start_) : windows_.back();
}

void Application::refuse(const grants::PackageError& error, const QString& path, QWidget* asking)
{
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    const grants::PackageMessage words = grants::package_message(error, name.toStdString());
    QWidget* alert = desktop::show_alert({to_qt(words.title), to_qt(words.text), to_qt(error.text)}, asking);
    if (!asking)
        Q_EMIT window_shown(alert);
}

} // namespace quillfern::app
