#pragma once

#include "platform/displaced_trees.h"
#include "platform/document_lock.h"
#include "platform/package_place.h"
#include "platform/save_error.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillfern::platform {

/// What a save writes, beside the place it writes to.
struct SaveRequest {
    const PackageLayout& layout;
    const PackageContents& contents;
    std::string today; ///< "2026-03-07", for the name of a conflicting copy
    std::function<bool()> readsBack =
        {}; ///< whether the main text gives the same records back; may run in another thread
    DisplacedTrees* displaced = nullptr; ///< who keeps previous states; null: they are deleted
};

/// What else a successful save has to tell.
struct SaveOutcome {
    std::vector<std::string> arrived; ///< attachments that others put there, carried over for the first time
    std::string conflict; ///< where the state that someone else wrote meanwhile is kept; empty when no one did
    std::vector<std::string> unknownEntries; ///< that are none of ours
    std::string displaced; ///< where the previous state is now; empty when it was deleted
    int displacedError = 0; ///< why the previous state could not be put away: it stays beside the document, hidden
};

/// Saves a document over its previous state, so that at every moment the disk holds a whole one, whatever fails.
///
/// 1. The package must still be the one that `place` describes; otherwise `changedOnDisk`.
/// 2. A hidden sibling is made. Unchanged attachments are cloned or linked, else copied; the rest is written.
///    Meanwhile the text is decoded again; if that does not give the same records back, it is `badContents`.
/// 3. Every new file, the attachments' folder and the sibling are flushed; mode, ACLs and attributes are taken over.
/// 4. Sibling and package are exchanged in one step, or in two renames where the file system cannot.
/// 5. The folder that holds them is flushed. Only now is the document saved. When that fails the error is `notFlushed`:
/// both
///    states stay, and the next save writes everything afresh.
/// 6. The state that was displaced is looked at again. If someone else wrote it after the first look, it is kept beside
/// the
///    document; otherwise `displaced` takes it, or it is deleted. Entries that are none of ours go where it goes; when
///    it is deleted, they move into the new state instead. So do attachments that arrived meanwhile, in any case.
///
/// On success `place` describes the new state and the request's blobs read from it; blobs of dropped attachments follow
/// the displaced tree, and are read into memory before one is deleted. On an error but `notFlushed`, nothing has
/// changed.
Result<SaveOutcome, SaveError> save_package(
    PackagePlace& place, const SaveRequest& request, const DocumentLock& lock, SystemCalls& calls = system_calls());

enum class Existing {
    refuse,
    replacePackage, ///< but nothing else: neither a plain file nor a folder that is no package of this layout
};

/// Whose the new package is.
enum class Ownership {
    document, ///< the document lives here from now on: its blobs read from the new files
    copy, ///< an export: the document's blobs stay where they are
};

struct NewPackage {
    std::shared_ptr<PackagePlace> place;
    SaveOutcome outcome;
};

/// Saves to a new place by the same steps. Attachments are cloned or copied, never linked: writing into one document's
/// attachment must not change another document. `lock` is the lock of `path`.
Result<NewPackage, SaveError> save_package_as(const std::string& path, const SaveRequest& request, Existing existing,
    Ownership ownership, const DocumentLock& lock, SystemCalls& calls = system_calls());

} // namespace quillfern::platform
