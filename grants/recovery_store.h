#pragma once

#include "base/result.h"
#include "grants/org_package.h"
#include "grants/recovery_folder.h"
#include "grants/recovery_note.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Snapshots of what is not saved, for the start after a crash. Each open document has a folder of its own:
///
///     FOLDER/<uuid>/
///         lock           held while the program that writes here lives
///         note           which of the other files make up the snapshot; replaced as a whole
///         records-7      the organization's records (JSON)
///         blob-3         an attachment: its bytes, or another link to its file
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

    /// Replaces the snapshot. An equal one is not written again. The error is an errno; the previous snapshot is then
    /// still there. May run in another thread, one call at a time.
    ///
    /// Attachments are linked, so that the snapshot does not depend on what becomes of the document's package. On
    /// another disk than the package's they are left there. What comes from elsewhere, from an earlier version or
    /// another document, is copied, and read from the snapshot from then on.
    Result<Done, int> write(const OrgPackage& package, const RecoveryInfo& info);

    /// Nothing of this document is unsaved any more. Bytes that an undo step reads from here stay as long as it does.
    void discard();

    /// The snapshot that stands here, of a slot that was found. `saved` is the document's package as it is on the disk
    /// now, null when there is none: attachments that only it holds come from there. Nothing on the disk changes, also
    /// when the snapshot cannot be read; the error says why.
    Result<RecoveredDocument, std::string> read(const OrgPackage* saved);

    /// Those of programs that are no more, reserved for the caller, the oldest first. Folders that another program
    /// still holds, and what is no snapshot, are left alone; what a crash has left of a snapshot that was none yet is
    /// removed.
    static std::vector<FoundRecovery> find(
        const std::string& folder, platform::SystemCalls& calls = platform::system_calls());

private:
    Result<RecoveryNote, int> read_note();
    Result<std::string, int> read_file(const std::string& name, std::int64_t limit);
    void read_blobs(const RecoveryNote& note, const OrgPackage* saved, RecoveredDocument& document);
    std::optional<platform::Blob> read_blob(const std::string& file, const platform::Blob* own);
    std::optional<platform::Blob> blob_in(const std::string& name);

    int open_folder();
    int write_records(const GrantFile& file, RecoveryNote& note);
    int write_blobs(const OrgPackage& package, RecoveryNote& note);
    Result<std::string, int> file_for(const platform::Blob& blob, const std::string& package_path);
    Result<std::string, int> take_file(
        const platform::Blob& blob, const platform::StoredFile& file, const std::string& package_path);
    int write_note(const RecoveryNote& note);
    std::string fresh_name(const char* kind) { return kind + std::to_string(++files_); }
    void tidy();

    std::string parent_;
    platform::SystemCalls* calls_;
    std::shared_ptr<RecoveryFolder> folder_; ///< null before the first snapshot
    std::int64_t files_ = 0; ///< how many have been made, for their names
    std::optional<RecoveryNote> note_; ///< as it stands on the disk
    bool sure_of_note_ = true; ///< false when the system reported an error and does not say which note stands there
    std::optional<OrgPackage> written_;
    std::vector<std::pair<platform::Blob, std::string>> blobs_; ///< what of them stands in which file
};

/// What a program that is no more has left.
struct FoundRecovery {
    RecoveryInfo info;
    RecoverySlot slot;
};

} // namespace quillfern::grants
