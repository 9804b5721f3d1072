#pragma once

#include "base/result.h"
#include "platform/descriptor.h"

#include <string>
#include <string_view>

namespace quillfern::platform {

struct LockHolder {
    int process = 0; ///< 0 when unknown
    std::string host;
};

/// Why a document could not be locked: somebody has it, or (with an errno) no lock can be made at all.
struct LockError {
    bool held = false;
    LockHolder holder;
    int systemError = 0;
    std::string path; ///< of the lock file or folder
};

/// The right to write one document, held from opening to closing.
///
/// It is a lock on a small file of the user's runtime folder, never on the package, whose folder a save exchanges. The
/// key is the document's folder (device and inode, so that every way there counts as one) and its name; a package that
/// does not exist yet can be locked, too. The kernel lets go when the program ends, however it ends. Two windows of one
/// program exclude each other like two programs. Only programs on this computer and of this user are kept apart.
///
///     auto lock = DocumentLock::acquire("/home/ana/Pantry.quillfern");
///     if (!lock && lock.error().held) ...   // open it read-only
class DocumentLock {
public:
    static Result<DocumentLock, LockError> acquire(const std::string& document, SystemCalls& calls = system_calls());

    /// The same with the lock files in `folder`, which must exist.
    static Result<DocumentLock, LockError> acquire_in(
        const std::string& folder, const std::string& document, SystemCalls& calls = system_calls());

private:
    explicit DocumentLock(Descriptor file) : file_(std::move(file)) { }

    Descriptor file_;
};

} // namespace quillfern::platform
