#pragma once

#include "platform/blob.h"
#include "platform/descriptor.h"
#include "platform/save_error.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillfern::platform {

/// A folder that is being written into, with its path for errors.
struct TargetFolder {
    int folder = -1;
    std::string path;
};

/// Mode, owner and group, ACLs and the user's extended attributes, as far as the file system and the user's rights
/// go: none of them is worth refusing a save. (ACLs are extended attributes, so no library is needed.)
void copy_attributes(SystemCalls& calls, int from, int to);

/// A new file with these bytes, flushed to the disk. `like` is an open file whose attributes it takes, or -1.
Result<FileStamp, SaveError> write_new_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, std::string_view bytes, int like);

/// A new file with the bytes, attributes and time of the open file `from`, which must still be as `expected`: otherwise
/// `changedOnDisk`. Flushed to the disk.
Result<FileStamp, SaveError> copy_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, const FileStamp& expected);

/// The same, sharing the data blocks. Absent, with nothing left behind, where the file system cannot.
Result<std::optional<FileStamp>, SaveError> clone_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, const FileStamp& expected);

/// Links the file `name` of the folder `from` into the target under `as`. False when this file system cannot link, or
/// not this file; an error when it could but the file is not as `expected`.
Result<bool, SaveError> link_file(SystemCalls& calls, const TargetFolder& target, int from, const std::string& name,
    const std::string& as, const FileStamp& expected);

/// Flushes a folder or file.
Result<Done, SaveError> flush(SystemCalls& calls, int file, const std::string& path);

} // namespace quillfern::platform
