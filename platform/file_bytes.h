#pragma once

#include "platform/blob.h"
#include "platform/descriptor.h"

#include <string>
#include <string_view>

/// Whole-file reading and writing through SystemCalls. Functions that return int return 0 or an errno.
namespace quillfern::platform {

/// Reads to the end of the file into `bytes`. EFBIG when there are more than `limit`.
int read_bytes(SystemCalls& calls, int file, std::int64_t limit, std::string& bytes);

int write_bytes(SystemCalls& calls, int file, std::string_view bytes);

/// From the present positions to the end of `from`; `copied` counts what came through.
int copy_bytes(SystemCalls& calls, int from, int to, std::int64_t& copied);

/// Closed and errno set when it cannot be opened. What stands there may have changed: compare its stamp.
Descriptor open_stored(const StoredFile& file, SystemCalls& calls);

/// A folder by its absolute path.
Descriptor open_folder(SystemCalls& calls, const std::string& path);

/// The same for looking only: a folder that may be passed through but not listed will do.
Descriptor open_folder_to_pass(SystemCalls& calls, const std::string& path);

/// A folder inside another; `name` empty opens nothing and fails with ENOENT.
Descriptor open_folder_at(SystemCalls& calls, int folder, const std::string& name);

} // namespace quillfern::platform
