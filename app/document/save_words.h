#pragma once

#include "platform/save_error.h"

#include <string>
#include <string_view>

namespace quillfern::app {

/// What the user reads when a file that they asked for could not be written.
struct SaveWords {
    std::string title;
    std::string message;

    friend bool operator==(const SaveWords&, const SaveWords&) = default;
};

SaveWords save_words(const platform::SaveError& error, std::string_view file_name);

} // namespace quillfern::app
