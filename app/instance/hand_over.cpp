#include "app/instance/hand_over.h"

#include "app/instance/local_socket.h"

#include <algorithm>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>

namespace quillfern::app {
namespace {

using namespace std::chrono_literals;

/// An owner that has taken a request still has to read the documents, perhaps from a slow network.
constexpr auto longest_opening = 60s;

bool wait_for(int socket, short events, Moment deadline)
{
    struct pollfd file = {.fd = socket, .events = events, .revents = 0};
    const auto poll_once = [&] {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        return poll(&file, 1, static_cast<int>(std::max(left, 0ms).count()));
    };
    return platform::retrying(poll_once) > 0;
}

/// An owner that reads no further may still say why: its answer counts, not how much it took.
void send_all(int socket, std::string_view bytes, Moment deadline)
{
    while (!bytes.empty() && wait_for(socket, POLLOUT, deadline)) {
        const ssize_t sent = send_some(socket, bytes);
        if (sent < 0 && errno != EAGAIN)
            return;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(sent, 0)));
    }
}

/// Without an answer in time none is accepted any more: from then on the owner's answer fails and it drops the
/// request. One that arrived at the last moment counts, so that the request is done exactly once.
HandOver answer_by(int socket, Moment deadline, Answer wanted)
{
    const bool in_time = wait_for(socket, POLLIN, deadline);
    if (!in_time)
        shutdown(socket, SHUT_RD);
    char answer = 0;
    const ssize_t count = platform::retrying([&] { return recv(socket, &answer, 1, 0); });
    if (count == 1)
        return answer == static_cast<char>(wanted) ? HandOver::done : HandOver::givenUp;
    return in_time ? HandOver::nobody : HandOver::givenUp;
}

} // namespace

HandOver hand_over(const std::string& socket_path, const std::string& request, Moment deadline)
{
    const platform::Descriptor socket = connect_to(socket_path);
    if (!socket)
        return HandOver::nobody;
    send_all(socket.get(), request, deadline);
    const HandOver taken = answer_by(socket.get(), deadline, Answer::taken);
    if (taken != HandOver::done)
        return taken;
    return answer_by(socket.get(), std::chrono::steady_clock::now() + longest_opening, Answer::done);
}

} // namespace quillfern::app
