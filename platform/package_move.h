#pragma once

#include "base/result.h"
#include "platform/document_lock.h"
#include "platform/package_layout.h"
#include "platform/package_place.h"
#include "platform/save_error.h"

#include <string>

namespace quillfern::platform {

/// Gives an open document another name or another folder of the same disk, in one step and without replacing anything.
///
/// The disk must still hold what `place` describes (`changedOnDisk`, `gone`), and nothing may have the new name
/// (`exists`). To another disk it is `failed` with EXDEV: then a copy has to be written. `notFlushed` says that the
/// document stands at its new path, but a power failure may put it back at the old one. On success and then, `place`
/// and the blobs know the new path; on any other error nothing has changed.
Result<Done, SaveError> move_package(PackagePlace& place, const std::string& path, const PackageLayout& layout,
    const DocumentLock& old_lock, const DocumentLock& new_lock, SystemCalls& calls = system_calls());

} // namespace quillfern::platform
