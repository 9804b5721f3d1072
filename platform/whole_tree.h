#pragma once

#include "platform/system_calls.h"

#include <string>

/// Trees with everything that is in them, whatever it is. The results are 0 or an errno.
namespace quillfern::platform {

/// Copies the tree to `to`, which must not exist, usually on another disk, and flushes all of it. Files keep their
/// times; a disk that cannot keep them is refused with EOPNOTSUPP, since blobs know their files by them. Sockets and
/// the like are left out.
///
/// A file in a folder of the tree is linked instead when `like`, an earlier copy, has one of the same name, size and
/// time; empty: there is none. What stands at the top is always copied. After an error something may be left at `to`.
int copy_whole_tree(SystemCalls& calls, const std::string& from, const std::string& to, const std::string& like);

/// Removes it, what stands at its top first, so that what a crash leaves is no package any more. A folder without
/// write permission is ours to empty all the same.
int remove_whole_tree(SystemCalls& calls, const std::string& path);

} // namespace quillfern::platform
