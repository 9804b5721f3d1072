#pragma once

#include "base/read_state.h"
#include "base/result.h"
#include "base/shared.h"
#include "grants/grant_file.h"
#include "platform/blob.h"
#include "platform/directory_save.h"
#include "platform/package_watch.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The organization document: a folder that the desktop shows as one file.
///
///     Pantry.quillfern/
///         Quillfern.json      the records (GrantFile)
///         Attachments/        one file per attachment, named by its `storedName`
///         Logo.png            when the organization has one
///
/// In memory it is one value. Edits give a new value; reading and writing are the only things that touch the disk.
namespace quillfern::grants {

constexpr const char* logo_file_name = "Logo.png";

using AttachmentBytes = std::map<std::string, platform::Blob, std::less<>>; ///< by stored name

struct OrgPackage {
    GrantFile file;
    Shared<AttachmentBytes> attachments; ///< also files that no record names; they are kept as they are
    std::optional<platform::Blob> logo; ///< PNG

    friend bool operator==(const OrgPackage&, const OrgPackage&) = default;
};

/// Why a document cannot be opened.
struct PackageError {
    enum class Reason { unreadable, newerFormat, notAPackage, missingData };

    Reason reason = Reason::unreadable;
    std::string text; ///< what exactly was found and where, for the curious; may be empty

    friend bool operator==(const PackageError&, const PackageError&) = default;
};

struct OpenedPackage {
    OrgPackage package;
    ReadNotes notes; ///< what a lenient read replaced or left out
    std::vector<std::string> unknownEntries; ///< in the folder, none of ours
    std::shared_ptr<platform::PackagePlace> place; ///< needed to save it again
};

/// `lock` is the document's lock, when the caller holds it: then what crashed saves have left beside the document goes
/// to `displaced`, or is deleted when that is null. Without a lock nothing is cleaned up.
Result<OpenedPackage, PackageError> read_package(const std::string& path, const platform::DocumentLock* lock = nullptr,
    platform::DisplacedTrees* displaced = nullptr);

/// Saves the document over its previous state. The records are encoded, and decoded again before anything on the disk
/// is touched: what would not read back as the same records is refused as `badContents`.
Result<platform::SaveOutcome, platform::SaveError> write_package(const OrgPackage& package,
    platform::PackagePlace& place, const platform::DocumentLock& lock, platform::DisplacedTrees* displaced = nullptr);

/// Saves it to a new place: the document moves there, or a copy is made.
Result<platform::NewPackage, platform::SaveError> write_package_as(const OrgPackage& package, const std::string& path,
    platform::Existing existing, platform::Ownership ownership, const platform::DocumentLock& lock,
    platform::DisplacedTrees* displaced = nullptr);

/// Whether the disk still holds what was read or saved last.
platform::PackageChange compare_with_disk(const platform::PackagePlace& place);

/// The document was read again: what is unchanged since `before` is read through `now` from here on, which the next
/// saves keep up to date.
void hand_over(const platform::PackagePlace& before, const platform::PackagePlace& now);

/// For a document that was read without its lock: puts away what crashed saves have left beside it. Returns how
/// many states that were.
int clear_leftovers(
    const platform::PackagePlace& place, const platform::DocumentLock& lock, platform::DisplacedTrees* displaced);

/// Gives the document another name or folder. What is on the disk moves; `package` is written only when the new folder
/// is on another disk, and the old tree then goes to `displaced`. Refused as `exists` when the name is taken. The
/// result is the place in which the document lives from now on.
Result<std::shared_ptr<platform::PackagePlace>, platform::SaveError> move_package(const OrgPackage& package,
    const std::shared_ptr<platform::PackagePlace>& place, const std::string& path,
    const platform::DocumentLock& old_lock, const platform::DocumentLock& new_lock,
    platform::DisplacedTrees* displaced);

} // namespace quillfern::grants
