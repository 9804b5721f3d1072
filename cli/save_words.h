#pragma once

#include "platform/save_error.h"

#include <string>

namespace quillfern::cli {

/// Why nothing was written to `path`, as a sentence for a person at the command line.
std::string save_refusal(const platform::SaveError& error, const std::string& path);

} // namespace quillfern::cli
