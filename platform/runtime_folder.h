#pragma once

#include "base/result.h"
#include "platform/system_calls.h"

#include <string>

namespace quillfern::platform {

/// Why there is no runtime folder: an errno, and the path that it is about.
struct RuntimeFolderError {
    int systemError = 0;
    std::string path;
};

/// The folder for what lives no longer than the user's session, such as locks and sockets: $XDG_RUNTIME_DIR/quillfern,
/// else a private folder in /tmp. It is made when it is missing, and nobody but this user can look into it.
Result<std::string, RuntimeFolderError> runtime_folder(SystemCalls& calls = system_calls());

} // namespace quillfern::platform
