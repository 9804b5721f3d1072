#include "app/instance/start_connection.h"

#include "app/instance/local_socket.h"

#include <QTimer>

#include <array>
#include <chrono>
#include <sys/socket.h>
#include <utility>

namespace quillfern::app {
namespace {

/// Longer than any start waits.
constexpr std::chrono::seconds longest_life(10);

} // namespace

StartConnection::StartConnection(
    platform::Descriptor socket, const std::function<void(const StartRequest&)>& perform, QObject* parent)
    : QObject(parent), socket_(std::move(socket)), perform_(perform), notifier_(socket_.get(), QSocketNotifier::Read)
{
    connect(&notifier_, &QSocketNotifier::activated, this, &StartConnection::read);
    QTimer::singleShot(longest_life, this, &QObject::deleteLater);
}

/// One piece a turn of the event loop, so that a flood does not keep the user waiting.
void StartConnection::read()
{
    std::array<char, 65536> piece;
    const ssize_t count = platform::retrying([&] { return recv(socket_.get(), piece.data(), piece.size(), 0); });
    if (count < 0 && errno == EAGAIN)
        return;
    if (count > 0)
        bytes_.append(piece.data(), static_cast<std::size_t>(count));
    const ReadStartRequest request = read_start_request(bytes_);
    if (count > 0 && request.completeness == Completeness::incomplete)
        return;
    notifier_.setEnabled(false);
    deleteLater();
    answer(request);
}

void StartConnection::answer(const ReadStartRequest& read)
{
    if (read.completeness != Completeness::complete) {
        send_answer(socket_.get(), Answer::refused);
        return;
    }
    if (!send_answer(socket_.get(), Answer::taken))
        return; // it waited in vain and does the work itself
    // The work may run an event loop, in which the time of this object may end.
    const platform::Descriptor socket = std::move(socket_);
    const auto perform = std::move(perform_);
    perform(read.request);
    send_answer(socket.get(), Answer::done);
}

} // namespace quillfern::app
