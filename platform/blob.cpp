#include "platform/blob.h"

#include "platform/file_bytes.h"

#include <fcntl.h>

namespace quillfern::platform {

struct BlobNode {
    std::int64_t size = 0;
    std::mutex mutex;
    BlobSource source;
};

namespace {

std::shared_ptr<BlobNode> make_node(std::int64_t size, BlobSource source)
{
    auto node = std::make_shared<BlobNode>();
    node->size = size;
    node->source = std::move(source);
    if (const auto* file = std::get_if<StoredFile>(&node->source))
        file->tree->remember(node);
    return node;
}

BlobError blob_error(int error)
{
    if (error == ENOENT || error == ENOTDIR || error == ELOOP)
        return {BlobProblem::missing, error};
    return {BlobProblem::unreadable, error};
}

/// The file at its start, when it is still the one that is meant.
Result<Descriptor, BlobError> open_unchanged(const StoredFile& file, SystemCalls& calls)
{
    Descriptor opened = open_stored(file, calls);
    if (!opened)
        return fail(blob_error(errno));
    struct stat status = {};
    if (calls.status(opened.get(), status) != 0)
        return fail(blob_error(errno));
    if (!S_ISREG(status.st_mode) || !same_size_and_time(stamp_of(status), file.stamp))
        return fail(BlobError{BlobProblem::changed, 0});
    return opened;
}

Result<Shared<std::string>, BlobError> read_file(const StoredFile& file, SystemCalls& calls)
{
    const auto opened = open_unchanged(file, calls);
    if (!opened)
        return fail(opened.error());
    std::string bytes;
    if (const int error = read_bytes(calls, opened->get(), file.stamp.size, bytes))
        return fail(blob_error(error));
    if (static_cast<std::int64_t>(bytes.size()) != file.stamp.size)
        return fail(BlobError{BlobProblem::changed, 0});
    return Shared<std::string>(std::move(bytes));
}

bool same_file(const StoredFile& a, const StoredFile& b)
{
    return a.tree == b.tree && a.folder == b.folder && a.name == b.name && a.stamp == b.stamp;
}

} // namespace

Blob::Blob(std::string bytes)
{
    const auto size = static_cast<std::int64_t>(bytes.size());
    node_ = make_node(size, Shared<std::string>(std::move(bytes)));
}

Blob::Blob(StoredFile file)
{
    const std::int64_t size = file.stamp.size;
    node_ = make_node(size, std::move(file));
}

std::int64_t Blob::size() const
{
    return node_->size;
}

Result<Shared<std::string>, BlobError> Blob::read(SystemCalls& calls) const
{
    // A save may move the file while it is being looked for; then its new place is tried.
    for (BlobSource tried = source();;) {
        if (const auto* bytes = std::get_if<Shared<std::string>>(&tried))
            return *bytes;
        const StoredFile& file = std::get<StoredFile>(tried);
        const std::string path = file.tree->path();
        auto read = read_file(file, calls);
        BlobSource now = source();
        const auto* now_file = std::get_if<StoredFile>(&now);
        if (read || (now_file && same_file(*now_file, file) && file.tree->path() == path))
            return read;
        tried = std::move(now);
    }
}

bool Blob::is_there(SystemCalls& calls) const
{
    const BlobSource where = source();
    const auto* file = std::get_if<StoredFile>(&where);
    return !file || open_unchanged(*file, calls).ok();
}

Blob Blob::independent() const
{
    return Blob(make_node(size(), source()));
}

bool operator==(const Blob& a, const Blob& b)
{
    if (a.node_ == b.node_)
        return true;
    if (a.size() != b.size())
        return false;
    const BlobSource left = a.source();
    const BlobSource right = b.source();
    if (left.index() != right.index())
        return false;
    if (const auto* bytes = std::get_if<Shared<std::string>>(&left))
        return *bytes == std::get<Shared<std::string>>(right);
    return same_file(std::get<StoredFile>(left), std::get<StoredFile>(right));
}

BlobSource Blob::source() const
{
    const std::lock_guard lock(node_->mutex);
    return node_->source;
}

void Blob::move_to(BlobSource source) const
{
    const auto tree_of = [](const BlobSource& each) {
        const auto* file = std::get_if<StoredFile>(&each);
        return file ? file->tree : nullptr;
    };
    const auto tree = tree_of(source);
    {
        const std::lock_guard lock(node_->mutex);
        std::swap(node_->source, source);
    }
    if (tree && tree != tree_of(source)) // now the former source
        tree->remember(node_);
}

std::string TreeLocation::path() const
{
    const std::lock_guard lock(mutex_);
    return path_;
}

void TreeLocation::set_path(std::string path)
{
    const std::lock_guard lock(mutex_);
    path_ = std::move(path);
}

void TreeLocation::remember(const std::shared_ptr<BlobNode>& node)
{
    const std::lock_guard lock(mutex_);
    if (nodes_.size() >= sweep_at_) {
        std::erase_if(nodes_, [](const std::weak_ptr<BlobNode>& each) { return each.expired(); });
        sweep_at_ = 2 * nodes_.size() + 64;
    }
    nodes_.push_back(node);
}

std::vector<Blob> TreeLocation::living() const
{
    std::vector<Blob> blobs;
    const std::lock_guard lock(mutex_);
    for (const std::weak_ptr<BlobNode>& each : nodes_)
        if (auto node = each.lock())
            blobs.push_back(Blob(std::move(node)));
    std::erase_if(blobs, [this](const Blob& blob) {
        const BlobSource source = blob.source();
        const auto* file = std::get_if<StoredFile>(&source);
        return !file || file->tree.get() != this;
    });
    return blobs;
}

} // namespace quillfern::platform
