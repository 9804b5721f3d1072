#pragma once

#include "platform/system_calls.h"

#include <string>

namespace quillfern::platform {

/// Renames only when nothing has the new name: EEXIST otherwise. On file systems that cannot refuse by themselves the
/// name is looked up first. 0 or an errno.
int rename_to_free_name(
    SystemCalls& calls, int from_folder, const std::string& from, int to_folder, const std::string& to);

} // namespace quillfern::platform
