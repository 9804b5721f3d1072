#pragma once

#include "platform/package_listing.h"

#include <any>
#include <memory>
#include <set>
#include <vector>

namespace quillfern::platform {

/// A tree that a save has displaced and had to leave beside the document.
struct KeptTree {
    std::shared_ptr<TreeLocation> tree;
    bool isOurs = false; ///< a previous state of ours for sure; else somebody else may have written it
    bool holdsMore = false; ///< than any later state: see PackagePlace
};

/// Where one open document stands on the disk, and how it looked there when it was read or last saved by us.
///
/// Held by whoever holds the document; reading makes it, saving brings it up to date. One thread at a time, but for
/// `tree`, which blobs share.
struct PackagePlace {
    std::shared_ptr<TreeLocation> tree; ///< its path is the document's
    Fingerprint fingerprint;

    /// Attachments that others have put there and that the document has not taken in. Each save carries them over.
    std::set<std::string, std::less<>> arrived = {};

    /// False after a save whose last flush failed: no one knows which of the files reached the disk, so the next save
    /// writes every one afresh and links to none.
    bool trusted = true;

    /// Whether what stands there holds more than what was read of it, because something in it could not be understood.
    /// Once a save has displaced it, it is kept until somebody takes it.
    bool holdsMore = false;

    /// The next good save disposes of them. Of those that nobody takes, the newest stays.
    std::vector<KeptTree> keptTrees = {};

    /// What whoever encodes the records remembers from one save to the next. The saver does not look at it.
    std::any encoderMemory = {};
};

} // namespace quillfern::platform
