#pragma once

#include "base/instant.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern::grants {

/// What the program knows of a document that is not saved.
struct RecoveryInfo {
    std::string path; ///< of the document; empty: it lives nowhere yet
    std::string title; ///< as its window was called
    std::string base; ///< SHA-256 of the saved records that the edits build on, 64 digits; empty: there are none
    Instant savedAt; ///< when the snapshot was made

    friend bool operator==(const RecoveryInfo&, const RecoveryInfo&) = default;
};

/// The content of a snapshot's note: what stands in which file beside it.
struct RecoveryNote {
    RecoveryInfo info;
    std::string records; ///< the file with the organization's records
    std::map<std::string, std::string>
        blobs; ///< file by stored name; an empty file name: the document's package has it
    std::optional<std::string> logo; ///< file, or empty as above; absent: there is no logo

    friend bool operator==(const RecoveryNote&, const RecoveryNote&) = default;
};

/// Lines of a key and values, each with its odd characters as %XX; the last line is "end", so that half a note is none.
std::string recovery_note_text(const RecoveryNote& note);

/// Absent for anything that this program, or one that writes the same lines, has not written.
std::optional<RecoveryNote> parse_recovery_note(std::string_view text);

} // namespace quillfern::grants
