#include "platform/versions_store.h"

#include "platform/file_save.h"
#include "platform/file_stamp.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"
#include "platform/resolve.h"
#include "platform/sha256.h"
#include "platform/state_folder.h"
#include "platform/whole_tree.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <set>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using CountedFiles = std::set<std::pair<dev_t, ino_t>>;

constexpr const char* path_file = "document";
constexpr std::size_t key_digits = 16;

bool status_of(const std::string& path, struct stat& status)
{
    return lstat(path.c_str(), &status) == 0;
}

/// What the tree takes on the disk beyond the files that are in `counted`, which it adds to.
std::int64_t own_bytes(const std::string& tree, CountedFiles& counted)
{
    std::int64_t bytes = 0;
    std::error_code error;
    for (fs::recursive_directory_iterator each(tree, error), end; !error && each != end; each.increment(error)) {
        struct stat status = {};
        if (status_of(each->path(), status) && S_ISREG(status.st_mode)
            && counted.emplace(status.st_dev, status.st_ino).second)
            bytes += status.st_size;
    }
    return bytes;
}

bool is_same_folder(const std::string& a, const std::string& b)
{
    struct stat left = {};
    struct stat right = {};
    return status_of(a, left) && status_of(b, right) && left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

std::vector<std::string> entries_of(const std::string& folder)
{
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator each(folder, error), end; !error && each != end; each.increment(error))
        paths.push_back(each->path());
    return paths;
}

} // namespace

VersionsStore::VersionsStore(std::string folder, std::string main_file, SystemCalls& calls)
    : folder_(std::move(folder)), main_file_(std::move(main_file)), calls_(calls)
{
}

std::string VersionsStore::folder_of(const std::string& document) const
{
    const std::string path = resolve_document(document);
    const std::string key = '-' + hex(sha256(path)).substr(0, key_digits);
    return join_path(folder_, shortened(split_path(path).name, longest_file_name - key.size()) + key);
}

Result<Done, int> VersionsStore::take(const std::string& document, const std::shared_ptr<TreeLocation>& tree)
{
    const std::string folder = folder_of(document);
    if (const int error = make_private_folder(folder))
        return fail(error);
    if (const std::string note = join_path(folder, path_file); !fs::exists(note))
        (void)save_file(note, document + '\n', Overwrite::replaceFile); // for people; nothing depends on it
    const std::vector<Version> kept = versions_of(document);
    auto taken = TreesInFolder(folder, calls_, kept.empty() ? "" : kept.front().path).take(document, tree);
    if (taken)
        protect(tree);
    return taken;
}

bool VersionsStore::is_version(const std::string& path) const
{
    struct stat status = {};
    return !split_path(path).name.starts_with(".~") && status_of(join_path(path, main_file_), status)
        && S_ISREG(status.st_mode);
}

std::vector<Version> VersionsStore::versions_of(const std::string& document) const
{
    std::vector<Version> versions;
    for (const std::string& path : entries_of(folder_of(document))) {
        struct stat status = {};
        if (is_version(path) && status_of(join_path(path, main_file_), status))
            versions.push_back({path, {stamp_of(status).modified / 1'000'000}});
    }
    std::sort(versions.begin(), versions.end(), [](const Version& a, const Version& b) {
        return a.savedAt != b.savedAt ? a.savedAt > b.savedAt : a.path > b.path;
    });
    return versions;
}

void VersionsStore::follow(const std::string& from, const std::string& to)
{
    const std::string old_folder = folder_of(from);
    const std::string new_folder = folder_of(to);
    const std::vector<Version> versions = versions_of(from);
    if (old_folder == new_folder || versions.empty() || make_private_folder(new_folder) != 0)
        return; // nothing to move, or the history stays where it is, under the old path
    for (const Version& version : versions)
        move_version(version.path, join_path(new_folder, split_path(version.path).name));
    (void)save_file(join_path(new_folder, path_file), resolve_document(to) + '\n', Overwrite::replaceFile);
    calls_.remove_at(AT_FDCWD, join_path(old_folder, path_file).c_str());
    calls_.remove_at(AT_FDCWD, old_folder.c_str(), AT_REMOVEDIR);
}

void VersionsStore::move_version(const std::string& from, const std::string& to)
{
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<TreeLocation>> readers;
    for (const auto& used : in_use_)
        if (auto tree = used.lock(); tree && is_same_folder(tree->path(), from))
            readers.push_back(std::move(tree));
    if (rename_to_free_name(calls_, AT_FDCWD, from, AT_FDCWD, to) == 0)
        for (const auto& tree : readers)
            tree->set_path(to);
}

bool VersionsStore::protect(const std::shared_ptr<TreeLocation>& tree)
{
    const std::lock_guard lock(mutex_);
    std::erase_if(in_use_, [](const auto& used) { return used.expired(); });
    in_use_.push_back(tree);
    return is_version(tree->path());
}

bool VersionsStore::is_in_use(const std::string& path) const
{
    return std::any_of(in_use_.begin(), in_use_.end(), [&](const auto& used) {
        const auto tree = used.lock();
        return tree && !tree->living().empty() && is_same_folder(tree->path(), path);
    });
}

void VersionsStore::prune(const std::string& document, Instant now, const PruningRule& rule)
{
    remove_dead(folder_of(document));
    std::vector<Version> versions = versions_of(document);
    std::vector<KeptState> states;
    for (const Version& version : versions) {
        const std::lock_guard lock(mutex_);
        states.push_back({version.savedAt, 0, is_in_use(version.path)});
    }
    const auto drop = [&] {
        const std::vector<std::size_t> places = states_to_drop(states, now, rule);
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            const auto at = static_cast<std::ptrdiff_t>(*place);
            remove(versions[*place].path);
            versions.erase(versions.begin() + at);
            states.erase(states.begin() + at);
        }
    };
    drop(); // by age; only what is left shares files that count
    CountedFiles counted;
    own_bytes(document, counted);
    for (std::size_t i = 0; i < versions.size(); ++i)
        states[i].bytes = own_bytes(versions[i].path, counted);
    drop();
}

/// Nobody writes here but the holder of the document's lock, so a copy that is not finished is what a crash has left.
void VersionsStore::remove_dead(const std::string& folder)
{
    for (const std::string& path : entries_of(folder)) {
        struct stat status = {};
        if (!status_of(path, status) || !S_ISDIR(status.st_mode))
            continue;
        const bool half_removed = !status_of(join_path(path, main_file_), status) && errno == ENOENT;
        if (half_removed || split_path(path).name.starts_with(".~"))
            remove(path);
    }
}

/// What cannot be removed now is tried again after the next save.
void VersionsStore::remove(const std::string& path)
{
    {
        const std::lock_guard lock(mutex_);
        if (is_in_use(path))
            return; // since it was looked at
        // The main file first: what a crash leaves half removed is no version any more, and protect() notices.
        if (calls_.remove_at(AT_FDCWD, join_path(path, main_file_).c_str()) != 0 && errno != ENOENT)
            return;
    }
    remove_whole_tree(calls_, path);
}

} // namespace quillfern::platform
