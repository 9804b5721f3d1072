#pragma once

#include "base/result.h"
#include "platform/save_error.h"
#include "platform/system_calls.h"

#include <string>
#include <string_view>

namespace quillfern::platform {

enum class Overwrite {
    refuse, ///< a taken name is `exists`
    replaceFile, ///< a regular file, also through the user's own link to it; nothing else is ever replaced
};

/// Writes one plain file (an export) so that its name never leads to half a file: the bytes are written aside, flushed
/// and renamed. A replaced file's mode, owner and attributes stay. On an error nothing has changed, but for
/// `notFlushed`: the file is there and may not survive a power failure.
Result<Done, SaveError> save_file(
    const std::string& path, std::string_view bytes, Overwrite overwrite, SystemCalls& calls = system_calls());

} // namespace quillfern::platform
