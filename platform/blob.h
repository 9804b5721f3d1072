#pragma once

#include "base/result.h"
#include "base/shared.h"
#include "platform/file_stamp.h"
#include "platform/system_calls.h"
#include "platform/tree_location.h"

#include <memory>
#include <string>
#include <variant>

namespace quillfern::platform {

/// A file of a tree on the disk, unchanged since `stamp` was taken.
struct StoredFile {
    std::shared_ptr<TreeLocation> tree;
    std::string folder; ///< inside the tree; empty for the tree itself
    std::string name;
    FileStamp stamp;
};

using BlobSource = std::variant<Shared<std::string>, StoredFile>;

enum class BlobProblem {
    missing, ///< the file is not there any more
    changed, ///< another file stands in its place, or it was written to
    unreadable, ///< the system refused; see `systemError`
};

struct BlobError {
    BlobProblem problem = BlobProblem::missing;
    int systemError = 0; ///< errno
};

struct BlobNode;

/// The bytes of an attachment: in memory, or a file of a package that is read when asked for.
///
/// A Blob is a handle; copies (in undo steps, in snapshots) stand for the same bytes and share their fate. When a
/// package is saved, its tree moves, and a dropped attachment moves aside with the displaced tree: the saver tells the
/// handle, and every copy of it goes on reading the same bytes from the new place. Reading and moving may happen in
/// different threads.
///
///     Blob letter(std::string("%PDF-1.4 ..."));    // in memory
///     letter.size();                               // costs nothing
///     if (auto bytes = letter.read()) ...          // reads a file, if it is one
class Blob {
public:
    explicit Blob(std::string bytes);
    explicit Blob(StoredFile file);

    std::int64_t size() const;

    /// A file is read anew each time; nothing is kept.
    Result<Shared<std::string>, BlobError> read(SystemCalls& calls = system_calls()) const;

    /// Whether reading would find the bytes: their file is there and as it was. Nothing is read.
    bool is_there(SystemCalls& calls = system_calls()) const;

    /// A handle of its own to the same bytes, for another document that is saved to its own place.
    Blob independent() const;

    /// Same bytes for sure: the same handle, the same file, or equal bytes in memory. Nothing is read, so two files
    /// with equal bytes count as different.
    friend bool operator==(const Blob& a, const Blob& b);

    // For the saver, which knows where the bytes are now.
    const void* identity() const { return node_.get(); } ///< the same for all copies of a handle
    BlobSource source() const;
    void move_to(BlobSource source) const;

private:
    friend class TreeLocation;
    explicit Blob(std::shared_ptr<BlobNode> node) : node_(std::move(node)) { }

    std::shared_ptr<BlobNode> node_;
};

} // namespace quillfern::platform
