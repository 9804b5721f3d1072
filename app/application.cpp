#include "app/application.h"

#include "app/document.h"
#include "app/main_window.h"
#include "app/package_path.h"
#include "app/start_window.h"
#include "desktop/alert.h"
#include "desktop/package_dialog.h"
#include "grants/package_messages.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace quillfern::app {
namespace {

QString qt(const std::string& text)
{
    return QString::fromStdString(text);
}

/// Says what of the file could not be used as it stands; the file itself is as it was.
void tell_notes(MainWindow& window)
{
    constexpr std::size_t most_sentences = 8;
    const ReadNotes& notes = window.document().notes();
    if (notes.empty())
        return;
    QStringList sentences;
    for (std::size_t i = 0; i < std::min(notes.size(), most_sentences); ++i)
        sentences.append(qt(notes[i]));
    if (notes.size() > most_sentences)
        sentences.append(QStringLiteral("… and %1 more").arg(notes.size() - most_sentences));
    desktop::show_alert({QStringLiteral("Some of this file couldn’t be read."),
                            QStringLiteral("What is listed here was left out or took its usual value. The rest is "
                                           "complete, and nothing in the file was changed."),
                            sentences.join(QLatin1Char('\n'))},
        &window);
}

} // namespace

Application::Application(DocumentSource& source, DayWatch::Clock clock, QObject* parent)
    : QObject(parent), source_(source), day_watch_(std::move(clock)), help_desk_(*this, model_)
{
}

Application::~Application()
{
    qDeleteAll(windows_);
    delete start_;
}

void Application::open(const QString& path, QWidget* asking)
{
    const QString package = package_path(path);
    if (MainWindow* window = window_of(package))
        return window->come_forward();
    auto opened = source_.read(package);
    if (!opened)
        return refuse(opened.error(), package, asking);
    show_document(std::make_unique<Document>(*std::move(opened), package));
}

void Application::open_sample()
{
    show_document(std::make_unique<Document>(source_.sample(day_watch_.today())));
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
    if (!start_)
        start_ = new StartWindow(*this);
    start_->show();
    Q_EMIT window_shown(start_);
}

MainWindow* Application::window_of(const QString& path) const
{
    for (MainWindow* window : windows_)
        if (window->document().path() == path)
            return window;
    return nullptr;
}

void Application::show_document(std::unique_ptr<Document> document)
{
    auto* window = new MainWindow(*this, std::move(document));
    windows_.append(window);
    connect(window, &QObject::destroyed, this, [this, window] { windows_.removeOne(window); });
    window->show();
    if (start_)
        start_->close();
    Q_EMIT window_shown(window);
    tell_notes(*window);
}

void Application::refuse(const grants::PackageError& error, const QString& path, QWidget* asking)
{
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    const grants::PackageMessage words = grants::package_message(error, name.toStdString());
    QWidget* alert = desktop::show_alert({qt(words.title), qt(words.text), qt(error.text)}, asking);
    if (!asking)
        Q_EMIT window_shown(alert);
}

} // namespace quillfern::app
