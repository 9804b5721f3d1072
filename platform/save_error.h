#pragma once

#include <string>

namespace quillfern::platform {

enum class SaveProblem {
    changedOnDisk, ///< someone else wrote the package since it was opened; nothing was touched
    gone, ///< there is no package at the document's path any more
    exists, ///< the name is taken
    notAPackage, ///< what has the name is not a document of this kind, so it is not replaced
    readOnly, ///< permissions, or a read-only disk
    diskFull, ///< or the user's quota is used up
    noFolder, ///< the folder that should hold the document does not exist
    attachmentLost, ///< an attachment that should be saved cannot be read any more; `path` is its name
    badContents, ///< the text does not read back, is too long, or an attachment's name is no file name
    notFlushed, ///< it is written, but may not survive a power failure; the document stays unsaved
    failed, ///< any other refusal by the system
};

enum class SaveStep { check, build, flush, swap };

/// Why a document could not be saved. But for `notFlushed`, what was on the disk is there as it was.
struct SaveError {
    SaveProblem problem = SaveProblem::failed;
    SaveStep step = SaveStep::check;
    std::string path; ///< what it was about
    int systemError = 0; ///< errno; 0 when the system refused nothing

    friend bool operator==(const SaveError&, const SaveError&) = default;
};

/// The problem that an errno stands for.
SaveError save_error(SaveStep step, std::string path, int system_error);

} // namespace quillfern::platform
