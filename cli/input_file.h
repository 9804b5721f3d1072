#pragma once

#include "base/result.h"

#include <cstdint>
#include <string>

namespace quillfern::cli {

/// The bytes of a regular file, or the sentence that says why there are none. Nothing larger than `limit` bytes is
/// read.
Result<std::string, std::string> read_input_file(const std::string& path, std::int64_t limit);

} // namespace quillfern::cli
