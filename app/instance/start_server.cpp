#include "app/instance/start_server.h"

#include "app/instance/local_socket.h"
#include "app/instance/start_connection.h"

#include <QSocketNotifier>

namespace quillfern::app {
namespace {

constexpr qsizetype most_connections = 64;

} // namespace

StartServer::StartServer(
    const SingleInstance& instance, std::function<void(const StartRequest&)> perform, QObject* parent)
    : QObject(parent), listener_(instance.listener().get()), perform_(std::move(perform))
{
    if (listener_ < 0)
        return;
    auto* notifier = new QSocketNotifier(listener_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &StartServer::accept);
}

/// Who has said nothing for longest makes room.
void StartServer::accept()
{
    platform::Descriptor socket = accept_from(listener_);
    if (!socket)
        return;
    const auto connections = findChildren<StartConnection*>(QString(), Qt::FindDirectChildrenOnly);
    if (connections.size() >= most_connections)
        delete connections.front();
    new StartConnection(std::move(socket), perform_, this);
}

} // namespace quillfern::app
