#include "app/session_watch.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace quillfern::app {
namespace {

/// A signal handler may do next to nothing: it passes the signal on to the event loop.
int signal_pipe = -1;

void pass_on(int signal)
{
    const char byte = static_cast<char>(signal);
    [[maybe_unused]] const auto written = write(signal_pipe, &byte, 1);
}

} // namespace

SessionWatch::SessionWatch(QObject* parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SessionWatch::session_ending, Qt::DirectConnection);
    if (pipe2(signals_, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // signals end the program as they do any other; its snapshots are still there
    signal_pipe = signals_[1];
    auto* notifier = new QSocketNotifier(signals_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &SessionWatch::read_signal);
    struct sigaction action = {};
    action.sa_handler = pass_on;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

SessionWatch::~SessionWatch()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
    signal_pipe = -1;
    for (const int end : signals_)
        if (end >= 0)
            close(end);
}

void SessionWatch::read_signal()
{
    char byte = 0;
    while (read(signals_[0], &byte, 1) > 0) { }
    Q_EMIT stop_asked();
}

void SessionWatch::listen_for_sleep()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(take_sleep(bool)));
}

void SessionWatch::take_sleep(bool begins)
{
    if (begins)
        Q_EMIT going_to_sleep();
}

} // namespace quillfern::app
