#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quillfern::platform {

class Blob;
struct BlobNode;

/// Where one tree of files is now, shared by all blobs that read from it.
///
/// When a tree moves (a document is renamed, a displaced tree goes to the versions), set_path() takes all of them
/// along. Whoever keeps displaced trees may hold a weak_ptr to know whether an undo step still needs one before
/// deleting it.
class TreeLocation {
public:
    explicit TreeLocation(std::string path) : path_(std::move(path)) { }

    std::string path() const;
    void set_path(std::string path);

    /// Moves the tree on the disk: `move` does it and returns 0 or an errno. Readers that cannot find their file wait
    /// until that is done, and look in the new place.
    template <class Move>
    int move_to(const std::string& path, Move&& move)
    {
        const std::lock_guard lock(mutex_);
        const int error = move();
        if (error == 0)
            path_ = path;
        return error;
    }

    void remember(const std::shared_ptr<BlobNode>& node);

    /// The blobs that read from this tree and that somebody still holds.
    std::vector<Blob> living() const;

private:
    mutable std::mutex mutex_;
    std::string path_;
    std::vector<std::weak_ptr<BlobNode>> nodes_; ///< also of blobs that have moved on; swept now and then
    std::size_t sweep_at_ = 64;
};

} // namespace quillfern::platform
