#include "platform/versions_store.h"

#include "platform/file_save.h"
#include "platform/file_stamp.h"
#include "platform/hidden_names.h"
#include "platform/sha256.h"
#include "platform/state_folder.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* path_file = "document";
constexpr std::size_t key_digits = 16;

bool status_of(const fs::path& path, struct stat& status)
{
    return lstat(path.c_str(), &status) == 0;
}

/// What the tree takes on the disk beyond the files that are in `counted`, which it adds to.
std::int64_t own_bytes(const std::string& tree, std::set<std::pair<dev_t, ino_t>>& counted)
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

} // namespace

VersionsStore::VersionsStore(std::string folder, std::string main_file, SystemCalls& calls)
    : folder_(std::move(folder)), main_file_(std::move(main_file)), calls_(calls)
{
}

std::string VersionsStore::folder_of(const std::string& document) const
{
    return join_path(folder_, split_path(document).name + '-' + hex(sha256(document)).substr(0, key_digits));
}

Result<Done, int> VersionsStore::take(const std::string& document, const std::shared_ptr<TreeLocation>& tree)
{
    const std::string folder = folder_of(document);
    if (const int error = make_private_folder(folder))
        return fail(error);
    if (const std::string note = join_path(folder, path_file); !fs::exists(note))
        (void)save_file(note, document + '\n', Overwrite::replaceFile); // for people; nothing depends on it
    auto taken = TreesInFolder(folder, calls_).take(document, tree);
    if (taken)
        protect(tree);
    return taken;
}

std::vector<Version> VersionsStore::versions_of(const std::string& document) const
{
    std::vector<Version> versions;
    std::error_code error;
    for (fs::directory_iterator each(folder_of(document), error), end; !error && each != end; each.increment(error)) {
        struct stat status = {};
        if (status_of(each->path() / main_file_, status) && S_ISREG(status.st_mode))
            versions.push_back({each->path(), {stamp_of(status).modified / 1'000'000}});
    }
    std::sort(versions.begin(), versions.end(), [](const Version& a, const Version& b) {
        return a.savedAt != b.savedAt ? a.savedAt > b.savedAt : a.path > b.path;
    });
    return versions;
}

void VersionsStore::follow(const std::string& from, const std::string& to)
{
    const fs::path old_folder = folder_of(from);
    const fs::path new_folder = folder_of(to);
    std::error_code error;
    if (!fs::exists(old_folder, error) || make_private_folder(new_folder) != 0)
        return; // the history stays where it is, under the old path
    for (const Version& version : versions_of(from)) {
        const fs::path target = new_folder / fs::path(version.path).filename();
        const std::lock_guard lock(mutex_);
        fs::rename(version.path, target, error);
        for (const auto& used : in_use_)
            if (const auto tree = used.lock(); !error && tree && tree->path() == version.path)
                tree->set_path(target);
    }
    fs::remove(old_folder / path_file, error);
    fs::remove(old_folder, error);
    (void)save_file(new_folder / path_file, to + '\n', Overwrite::replaceFile);
}

void VersionsStore::protect(const std::shared_ptr<TreeLocation>& tree)
{
    const std::lock_guard lock(mutex_);
    std::erase_if(in_use_, [](const auto& used) { return used.expired(); });
    in_use_.push_back(tree);
}

bool VersionsStore::is_in_use(const std::string& path) const
{
    const std::lock_guard lock(mutex_);
    return std::any_of(in_use_.begin(), in_use_.end(), [&](const auto& used) {
        const auto tree = used.lock();
        return tree && tree->path() == path && !tree->living().empty();
    });
}

void VersionsStore::prune(const std::string& document, Instant now, const PruningRule& rule)
{
    const std::vector<Version> versions = versions_of(document);
    std::vector<KeptState> states;
    std::set<std::pair<dev_t, ino_t>> counted;
    for (const Version& version : versions)
        states.push_back({version.savedAt, own_bytes(version.path, counted), is_in_use(version.path)});
    for (const std::size_t place : states_to_drop(states, now, rule)) {
        std::error_code error; // what cannot be removed now is tried again after the next save
        // The main file first: what a crash leaves half removed is no version any more.
        fs::remove(fs::path(versions[place].path) / main_file_, error);
        fs::remove_all(versions[place].path, error);
    }
}

} // namespace quillfern::platform
