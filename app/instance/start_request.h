#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::app {

/// What a start of the program asks for. Nothing asked for: the program is to show itself.
struct StartRequest {
    std::vector<std::string> files; ///< absolute paths, as the file system's bytes
    bool sample = false;
    std::string activationToken; ///< the desktop's permission to come to the front; empty: none

    bool operator==(const StartRequest&) const = default;
};

/// More than anybody opens at once, and a bound on what a program that means harm can make another one keep.
inline constexpr std::size_t most_files = 256;
inline constexpr std::size_t most_request_bytes = most_files * 4096;

/// The request as it goes from one running program to another; empty when it is beyond the bounds.
std::string write_start_request(const StartRequest& request);

enum class Completeness { incomplete, complete, malformed };

struct ReadStartRequest {
    Completeness completeness = Completeness::incomplete;
    StartRequest request; ///< when it is complete
};

/// What has arrived so far. More bytes never make a malformed request a good one.
ReadStartRequest read_start_request(std::string_view bytes);

} // namespace quillfern::app
