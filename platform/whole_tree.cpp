#include "platform/whole_tree.h"

#include "platform/file_bytes.h"
#include "platform/file_copy.h"
#include "platform/hidden_names.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>

namespace quillfern::platform {
namespace {

constexpr mode_t full_use = 0700; // of a folder, for its owner

struct Entry {
    std::string name;
    struct stat status = {};

    bool is_folder() const { return S_ISDIR(status.st_mode); }
};

/// Folders last.
int list_entries(SystemCalls& calls, int folder, std::vector<Entry>& entries)
{
    std::vector<std::string> names;
    if (calls.list(folder, names) != 0)
        return errno;
    for (const std::string& name : names) {
        Entry entry{name, {}};
        if (calls.status_at(folder, name.c_str(), entry.status) == 0)
            entries.push_back(std::move(entry));
        else if (errno != ENOENT)
            return errno;
    }
    std::stable_partition(entries.begin(), entries.end(), [](const Entry& entry) { return !entry.is_folder(); });
    return 0;
}

int errno_of(const SaveError& error)
{
    return error.systemError != 0 ? error.systemError : ESTALE;
}

int copy_link(const std::string& from, const std::string& to)
{
    std::error_code error;
    std::filesystem::copy_symlink(from, to, error);
    return error.value();
}

class TreeCopy {
public:
    explicit TreeCopy(SystemCalls& calls) : calls_(calls) { }

    int copy(const std::string& from, const std::string& to, const std::string& like);

private:
    int copy_entry(const Entry& entry, int from, const TargetFolder& target, int like);
    int copy_file(const Entry& entry, int from, const TargetFolder& target);

    SystemCalls& calls_;
    int depth_ = 0;
};

int TreeCopy::copy(const std::string& from, const std::string& to, const std::string& like)
{
    const Descriptor source = open_folder(calls_, from);
    std::vector<Entry> entries;
    if (!source)
        return errno;
    if (const int error = list_entries(calls_, source.get(), entries))
        return error;
    if (calls_.make_folder_at(AT_FDCWD, to.c_str(), full_use) != 0)
        return errno;
    const Descriptor target = open_folder(calls_, to);
    if (!target)
        return errno;
    const Descriptor model = like.empty() ? Descriptor() : open_folder(calls_, like);
    for (const Entry& entry : entries) {
        ++depth_;
        const int error = entry.is_folder()
            ? copy(
                join_path(from, entry.name), join_path(to, entry.name), like.empty() ? "" : join_path(like, entry.name))
            : copy_entry(entry, source.get(), {target.get(), to}, depth_ > 1 ? model.get() : -1);
        --depth_;
        if (error)
            return error;
    }
    copy_attributes(calls_, source.get(), target.get());
    return retrying([&] { return calls_.sync(target.get()); }) == 0 ? 0 : errno;
}

int TreeCopy::copy_entry(const Entry& entry, int from, const TargetFolder& target, int like)
{
    if (S_ISLNK(entry.status.st_mode)) {
        const std::string folder = "/proc/self/fd/" + std::to_string(from);
        return copy_link(join_path(folder, entry.name), join_path(target.path, entry.name));
    }
    if (!S_ISREG(entry.status.st_mode))
        return 0;
    struct stat kept = {};
    if (like >= 0 && calls_.status_at(like, entry.name.c_str(), kept) == 0 && S_ISREG(kept.st_mode)
        && same_size_and_time(stamp_of(kept), stamp_of(entry.status))) {
        const auto linked = link_file(calls_, target, like, entry.name, entry.name, stamp_of(kept));
        if (!linked)
            return errno_of(linked.error());
        if (*linked)
            return 0;
    }
    return copy_file(entry, from, target);
}

int TreeCopy::copy_file(const Entry& entry, int from, const TargetFolder& target)
{
    const Descriptor file = open_file(calls_, from, entry.name.c_str(), O_RDONLY);
    if (!file)
        return errno;
    const FileStamp expected = stamp_of(entry.status);
    const auto stamp = platform::copy_file(calls_, target, entry.name, file.get(), expected);
    if (!stamp)
        return errno_of(stamp.error());
    return same_size_and_time(*stamp, expected) ? 0 : EOPNOTSUPP;
}

} // namespace

int copy_whole_tree(SystemCalls& calls, const std::string& from, const std::string& to, const std::string& like)
{
    return TreeCopy(calls).copy(from, to, like);
}

int remove_whole_tree(SystemCalls& calls, const std::string& path)
{
    {
        const Descriptor folder = open_folder(calls, path);
        struct stat status = {};
        std::vector<Entry> entries;
        if (!folder)
            return errno == ENOENT ? 0 : errno;
        if (calls.status(folder.get(), status) == 0 && (status.st_mode & full_use) != full_use)
            calls.set_mode(folder.get(), (status.st_mode & 07777) | full_use);
        if (const int error = list_entries(calls, folder.get(), entries))
            return error;
        for (const Entry& entry : entries) {
            int error = 0;
            if (entry.is_folder())
                error = remove_whole_tree(calls, join_path(path, entry.name));
            else if (calls.remove_at(folder.get(), entry.name.c_str()) != 0 && errno != ENOENT)
                error = errno;
            if (error)
                return error;
        }
    }
    return calls.remove_at(AT_FDCWD, path.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT ? 0 : errno;
}

} // namespace quillfern::platform
