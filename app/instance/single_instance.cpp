#include "app/instance/single_instance.h"

#include "app/instance/hand_over.h"
#include "app/instance/local_socket.h"
#include "platform/hidden_names.h"
#include "platform/runtime_folder.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <thread>

namespace quillfern::app {
namespace {

using namespace std::chrono_literals;

/// Between two attempts while an owner comes or goes: it takes the lock a moment before it listens.
constexpr auto pause = 5ms;

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// A window can only be raised on the display that it is on. The names stay readable, and are not hashed: waking up the
/// library for that would cost more than all the rest.
std::string display_key()
{
    const std::string wayland = environment("WAYLAND_DISPLAY");
    const std::string display = wayland.empty() ? environment("DISPLAY") : wayland;
    std::string key = environment("QT_QPA_PLATFORM") + '@' + display;
    std::ranges::replace(key, '/', '=');
    return key;
}

} // namespace

StartRole SingleInstance::claim(const StartRequest& request, std::chrono::milliseconds patience)
{
    const Moment deadline = std::chrono::steady_clock::now() + patience;
    const std::string bytes = write_start_request(request);
    const auto folder = platform::runtime_folder();
    if (bytes.empty() || !folder)
        return StartRole::alone;
    const std::string path = platform::join_path(*folder, "start-" + display_key());
    platform::SystemCalls& calls = platform::system_calls();
    lock_ = platform::open_file(calls, AT_FDCWD, (path + ".lock").c_str(), O_RDWR | O_CREAT, 0600);
    HandOver result = lock_ ? HandOver::nobody : HandOver::givenUp;
    while (result == HandOver::nobody) {
        if (platform::retrying([&] { return calls.lock(lock_.get()); }) == 0)
            return own(path + ".socket");
        result = hand_over(path + ".socket", bytes, deadline);
        if (result == HandOver::nobody && std::chrono::steady_clock::now() > deadline)
            result = HandOver::givenUp;
        if (result == HandOver::nobody)
            std::this_thread::sleep_for(pause);
    }
    lock_ = {};
    return result == HandOver::done ? StartRole::handedOver : StartRole::alone;
}

StartRole SingleInstance::own(const std::string& socket_path)
{
    listener_ = listen_at(socket_path);
    if (listener_)
        return StartRole::owner;
    lock_ = {}; // nobody is to wait for a program that cannot be reached
    return StartRole::alone;
}

} // namespace quillfern::app
