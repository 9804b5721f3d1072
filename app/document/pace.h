#pragma once

#include <chrono>

namespace quillfern::app {

/// How soon what was typed is safe.
struct Pace {
    std::chrono::milliseconds pause = std::chrono::seconds(2); ///< without an edit before a snapshot is written
    std::chrono::milliseconds longest = std::chrono::seconds(10); ///< of edits without a pause before it is
    std::chrono::milliseconds idle = std::chrono::seconds(30); ///< without an edit before the file is saved
};

} // namespace quillfern::app
