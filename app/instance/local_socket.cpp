#include "app/instance/local_socket.h"

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillfern::app {
namespace {

using platform::Descriptor;

/// Sockets have short names: 107 bytes on Linux.
bool put_name(struct sockaddr_un& address, const std::string& path)
{
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return true;
}

/// `call` is bind or connect.
template <class Call>
Descriptor socket_at(const std::string& path, Call call)
{
    struct sockaddr_un address = {};
    Descriptor file(platform::system_calls(), socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const auto* plain = reinterpret_cast<const struct sockaddr*>(&address);
    if (!file || !put_name(address, path) || call(file.get(), plain, sizeof(address)) != 0)
        return {};
    return file;
}

bool is_ours(int socket)
{
    struct ucred peer = {};
    socklen_t size = sizeof(peer);
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace

Descriptor listen_at(const std::string& path)
{
    unlink(path.c_str());
    Descriptor file = socket_at(path, bind);
    return file && listen(file.get(), SOMAXCONN) == 0 ? std::move(file) : Descriptor();
}

Descriptor connect_to(const std::string& path)
{
    return socket_at(path, connect);
}

Descriptor accept_from(int listener)
{
    const auto accept_one = [&] { return accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK); };
    Descriptor file(platform::system_calls(), platform::retrying(accept_one));
    return file && is_ours(file.get()) ? std::move(file) : Descriptor();
}

ssize_t send_some(int socket, std::string_view bytes)
{
    return platform::retrying([&] { return send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL); });
}

bool send_answer(int socket, Answer answer)
{
    const char byte = static_cast<char>(answer);
    return send_some(socket, {&byte, 1}) == 1;
}

} // namespace quillfern::app
