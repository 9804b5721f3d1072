#pragma once

#include "base/result.h"
#include "grants/org_package.h"
#include "grants/recovery_note.h"
#include "platform/descriptor.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Snapshots of what is not saved, for the start after a crash. Each open document has a folder of its own:
///
///     FOLDER/<uuid>/
///         lock           held while the program that writes here lives
///         note           which of the other files make up the snapshot; replaced as a whole
///         records-7      the organization's records (JSON)
///         blob-3         bytes that the document's own package does not hold
///
/// A snapshot counts once its note is written, so a crash at any moment leaves the previous or the next one.
namespace quillfern::grants {

struct FoundRecovery;

struct RecoveredDocument {
    OrgPackage package;
    ReadNotes notes; ///< attachments that could not be found
};

/// Where the snapshots of one document are written.
class RecoverySlot {
public:
    /// In `folder`; nothing is made there before the first snapshot.
    explicit RecoverySlot(std::string folder, platform::SystemCalls& calls = platform::system_calls());

    /// Replaces the snapshot. An equal value is not written again. The error is an errno; the previous snapshot is then
    /// still there. May run in another thread, one call at a time.
    Result<Done, int> write(const OrgPackage& package, const RecoveryInfo& info);

    /// Nothing of this document is unsaved any more.
    void discard();

    /// The snapshot that stands here, of a slot that was found. `saved` is the document's package as it is on the disk
    /// now, null when there is none: attachments that only it holds come from there. Nothing on the disk changes, also
    /// when the snapshot cannot be read; the error says why.
    Result<RecoveredDocument, std::string> read(const OrgPackage* saved);

    /// Those of programs that are no more, reserved for the caller, the oldest first. Folders that another program
    /// still holds, and what is no snapshot, are left alone.
    static std::vector<FoundRecovery> find(
        const std::string& folder, platform::SystemCalls& calls = platform::system_calls());

private:
    std::optional<RecoveryNote> read_note();
    Result<std::string, int> read_file(const std::string& name, std::int64_t limit);
    void read_blobs(const RecoveryNote& note, const OrgPackage* saved, RecoveredDocument& document);
    std::optional<platform::Blob> blob_in(const std::string& name);

    int open_folder();
    int write_blobs(const OrgPackage& package, const RecoveryInfo& info, RecoveryNote& note);
    Result<std::string, int> file_for(const platform::Blob& blob, const std::string& package_path);
    Result<Done, int> write_file(const std::string& name, std::string_view bytes);
    void remove_unused(const RecoveryNote& note);
    std::string inside(const std::string& name) const { return path_ + '/' + name; }

    std::string folder_;
    platform::SystemCalls* calls_;
    std::string path_;
    platform::Descriptor lock_;
    std::int64_t files_ = 0; ///< how many have been made, for their names
    std::optional<OrgPackage> written_;
    std::vector<std::pair<platform::Blob, std::string>> blobs_; ///< what of them stands in which file
    std::shared_ptr<platform::TreeLocation> tree_; ///< through which recovered blobs read from here
};

/// What a program that is no more has left.
struct FoundRecovery {
    RecoveryInfo info;
    RecoverySlot slot;
};

} // namespace quillfern::grants
