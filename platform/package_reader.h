#pragma once

#include "platform/displaced_trees.h"
#include "platform/document_lock.h"
#include "platform/package_place.h"

#include <memory>
#include <string>
#include <vector>

namespace quillfern::platform {

enum class PackageProblem {
    notFound, ///< nothing has that name
    notAPackage, ///< not a folder
    missingMainFile, ///< no regular file of that name in it
    tooLarge, ///< the main file is beyond the layout's limit
    unreadable, ///< the system refused, see `systemError`; or it was being written all the time
};

struct PackageReadError {
    PackageProblem problem = PackageProblem::unreadable;
    std::string path;
    int systemError = 0; ///< errno; 0 when the system refused nothing
};

struct PackageRead {
    PackageContents contents; ///< attachments and logo are files that are read when asked for
    std::shared_ptr<PackagePlace> place;
    std::vector<std::string> unknownEntries; ///< entries that are none of ours; a save does not keep them in place
};

/// Opens a package: its main file is read, the rest is only looked at.
///
/// The path may be the user's own link to a package; inside the package no link is followed, and nothing but regular
/// files is opened. A save by another program may exchange the folder at any moment: then reading starts again, so that
/// the result is one state and never a mixture. A document that a crash has left under its backup name is put back
/// first, unless someone holds its lock; that is the only thing that reading changes.
Result<PackageRead, PackageReadError> read_package_folder(const std::string& path, const PackageLayout& layout,
    const DocumentLock* lock = nullptr, SystemCalls& calls = system_calls());

/// Puts away what crashed saves of this document have left beside it: to `displaced`, or deleted when it is null. Only
/// for a document whose contents have been read and decoded, by the holder of its lock: as long as it cannot be read, a
/// leftover may be all there is. Returns how many were found.
int clean_leftovers(const PackagePlace& place, const PackageLayout& layout, DisplacedTrees* displaced,
    const DocumentLock& lock, SystemCalls& calls = system_calls());

} // namespace quillfern::platform
