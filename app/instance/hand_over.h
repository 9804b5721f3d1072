#pragma once

#include <chrono>
#include <string>

namespace quillfern::app {

using Moment = std::chrono::steady_clock::time_point;

enum class HandOver {
    done, ///< the owner has done what was asked for
    nobody, ///< there is no owner, or it ended meanwhile; nothing was done
    givenUp, ///< the owner hangs or does not understand; it does not come back to the request later
};

/// Hands a request (as written by write_start_request) over to the program that listens at `socket_path`, and waits
/// until it has taken it, at the longest until `deadline`. Opening what it has taken may last longer.
HandOver hand_over(const std::string& socket_path, const std::string& request, Moment deadline);

} // namespace quillfern::app
