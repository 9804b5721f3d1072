#include "app/requested_start.h"

#include "app/application.h"
#include "app/window/main_window.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

namespace quillfern::app {
namespace {

constexpr const char* token_variable = "XDG_ACTIVATION_TOKEN";

/// The toolkit takes the token out of the environment when a window is activated, as it does after a start.
void use_token(const std::string& token)
{
    if (!token.empty() && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        qputenv(token_variable, QByteArray::fromStdString(token));
}

void bring_forward(QWidget& window)
{
    if (window.isMinimized())
        window.showNormal();
    window.raise();
    window.activateWindow();
}

} // namespace

StartRequest request_of(const Options& options)
{
    StartRequest request;
    for (const QString& file : options.files)
        request.files.push_back(QFile::encodeName(QFileInfo(file).absoluteFilePath()).toStdString());
    request.sample = options.sample;
    request.activationToken = qgetenv(token_variable).toStdString();
    return request;
}

void open_requested(Application& program, const StartRequest& request)
{
    for (const std::string& file : request.files)
        program.open(QFile::decodeName(QByteArray::fromStdString(file)), nullptr);
    if (request.sample)
        program.open_sample();
    if (request.files.empty() && !request.sample)
        program.show_start();
}

void perform_request(Application& program, const StartRequest& request)
{
    use_token(request.activationToken);
    QPointer<QWidget> front;
    const QMetaObject::Connection watching =
        QObject::connect(&program, &Application::window_shown, &program, [&front](QWidget* window) { front = window; });
    if (request.files.empty() && !request.sample && !program.windows().isEmpty())
        front = program.windows().back();
    else
        open_requested(program, request);
    QObject::disconnect(watching);
    if (front)
        bring_forward(*front);
}

} // namespace quillfern::app
