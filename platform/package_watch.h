#pragma once

#include "platform/package_layout.h"
#include "platform/package_place.h"

namespace quillfern::platform {

/// How the disk stands to an open document.
enum class PackageChange {
    same, ///< what was read or saved last; attachments that have arrived lose nothing and count as the same
    changed, ///< somebody else has written it
    gone, ///< no package stands at its path any more, or its disk is away
};

/// Looks without reading, unless size and time leave it open whether the records are others. Where the system refuses
/// to say, nothing counts as changed: the next save looks again, and refuses to write over what it does not know.
PackageChange compare_with_disk(
    const PackagePlace& place, const PackageLayout& layout, SystemCalls& calls = system_calls());

/// Blobs that read through `before` from files that are unchanged in `now`, the same package read again, read through
/// `now` from here on.
void hand_over(const PackagePlace& before, const PackagePlace& now, const PackageLayout& layout);

} // namespace quillfern::platform
