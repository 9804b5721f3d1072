#pragma once

#include "platform/directory_save.h"

#include <memory>
#include <string>

namespace quillfern::platform {

/// Blobs that read from `tree` read from its displaced state, at `path`, from now on; but for those of `adopted`, which
/// adopt() moves.
std::shared_ptr<TreeLocation> set_apart(
    const std::shared_ptr<TreeLocation>& tree, const std::string& path, const PackageContents& adopted);

/// The blobs of `contents` read from the saved files in `tree` from now on. With `keep_memory` those whose bytes are in
/// memory stay there, for a save that may not have reached the disk.
void adopt(const PackageContents& contents, const PackageLayout& layout, const PackageListing& saved,
    const std::shared_ptr<TreeLocation>& tree, bool keep_memory);

/// What a save has put aside.
struct Displaced {
    std::shared_ptr<TreeLocation> tree;
    Fingerprint expected; ///< as it was when the save began, with what others had put there and the new state has, too
};

/// The last step of a save: keeps a displaced tree that someone else has written, puts away any other, and tells in
/// `outcome`. Trees that cannot be put away are remembered in `place`, for the next save.
void settle(SystemCalls& calls, PackagePlace& place, const SaveRequest& request, const Displaced& displaced,
    SaveOutcome& outcome);

} // namespace quillfern::platform
