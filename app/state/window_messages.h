#pragma once

#include <cstdint>
#include <string>

namespace quillfern::app {

/// A message that stays until it is dismissed.
struct AlertItem {
    std::int64_t id = 0; ///< another one for each alert, so that the same words can be shown twice
    std::string title;
    std::string message;

    friend bool operator==(const AlertItem&, const AlertItem&) = default;
};

/// A message that goes by itself, or when the next one comes.
struct Toast {
    std::string text;

    friend bool operator==(const Toast&, const Toast&) = default;
};

} // namespace quillfern::app
