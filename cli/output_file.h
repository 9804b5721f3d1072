#pragma once

#include "base/result.h"

#include <string>
#include <string_view>

namespace quillfern::cli {

/// Writes a whole file, or leaves what stands under the name as it is. A file that stands there is replaced only when
/// `force` is set, and never one inside a document. The failure is a sentence for a person.
Result<Done, std::string> write_output_file(const std::string& path, std::string_view bytes, bool force);

} // namespace quillfern::cli
