#pragma once

#include "app/instance/start_request.h"
#include "platform/descriptor.h"

#include <chrono>
#include <string>

namespace quillfern::app {

/// Which start of the program this is.
enum class StartRole {
    owner, ///< the first one on this display: the others come to it
    handedOver, ///< another program has done what this start was asked for
    alone, ///< neither: this program serves itself only
};

/// Keeps one program running for each display of a user.
///
/// Who holds the lock on a small file of the runtime folder is the owner, and only the owner may put its socket there:
/// the kernel lets go of the lock when the program ends, however it ends, so nothing is ever stale. A request goes to
/// exactly one program: the owner acts only on one that it could confirm, and whoever waits in vain for that (a hanging
/// program, a broken one) acts alone. So does every start when no lock or no socket can be made.
class SingleInstance {
public:
    /// `patience` is how long an owner may take to answer.
    StartRole claim(const StartRequest& request, std::chrono::milliseconds patience = std::chrono::seconds(5));

    /// The owner's socket; no descriptor in the other roles.
    const platform::Descriptor& listener() const { return listener_; }

private:
    StartRole own(const std::string& socket_path);

    platform::Descriptor lock_;
    platform::Descriptor listener_;
};

} // namespace quillfern::app
