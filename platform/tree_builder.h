#pragma once

#include "platform/file_copy.h"
#include "platform/package_place.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillfern::platform {

/// The package that a save replaces, opened and looked at.
struct PresentPackage {
    Descriptor folder;
    Descriptor attachments; ///< closed when there is no such folder
    PackageListing listing;
};

/// How attachments that are on the disk already may be taken over.
enum class Reuse {
    copies, ///< byte by byte: it is not known which files reached the disk
    clones, ///< sharing data blocks where the file system can; the two documents stay independent
    links, ///< also as hard links, to files of the package that is being replaced
};

/// What a save writes, and what it may take from the disk.
struct BuildPlan {
    const PackageLayout& layout;
    const PackageContents& contents;
    const PresentPackage* present = nullptr; ///< whose attributes the new tree takes; null for a new document
    const TreeLocation* presentTree = nullptr; ///< through which blobs read from `present`; null when none do
    Reuse reuse = Reuse::copies;
    StampedFiles arrived = {}; ///< attachments of `present` that others have put there, carried over
    std::function<bool()> readsBack = {}; ///< runs beside the building; when it says no the error is `badContents`
};

/// A finished tree, flushed to the disk.
struct BuiltTree {
    Fingerprint fingerprint; ///< of what the document holds: without attachments that have arrived
};

/// Builds the whole tree of a package in `sibling`, an empty folder that is ours alone. On an error the sibling may be
/// half full; the caller removes it.
Result<BuiltTree, SaveError> build_tree(SystemCalls& calls, const TargetFolder& sibling, const BuildPlan& plan);

} // namespace quillfern::platform
