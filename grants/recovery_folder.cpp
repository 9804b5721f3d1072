#include "grants/recovery_folder.h"

#include "platform/blob.h"
#include "platform/random_uuid.h"
#include "platform/state_folder.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <vector>

namespace quillfern::grants {
namespace {

using platform::Descriptor;
using platform::SystemCalls;

constexpr const char* lock_file = "lock";
constexpr int attempts = 10;

std::vector<std::string> names_in(const std::string& path)
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator each(path, error), end; !error && each != end; each.increment(error))
        names.push_back(each->path().filename());
    return names;
}

bool is_own_name(std::string_view name)
{
    if (name.starts_with(".~")) // being written when the program ended
        name.remove_prefix(2);
    return name == lock_file || name.starts_with(RecoveryFolder::note) || name.starts_with("records-")
        || name.starts_with("blob-");
}

Descriptor open_lock(SystemCalls& calls, const std::string& folder, int flags)
{
    return platform::open_file(calls, AT_FDCWD, (folder + '/' + lock_file).c_str(), flags, 0600);
}

bool lock(SystemCalls& calls, const Descriptor& file)
{
    return platform::retrying([&] { return calls.lock(file.get()); }) == 0;
}

/// Whoever looks for leftovers may have held the lock of a folder that is just being made, and removed it.
bool is_in_place(SystemCalls& calls, const Descriptor& file, const std::string& folder)
{
    struct stat held = {};
    struct stat present = {};
    return calls.status(file.get(), held) == 0
        && calls.status_at(AT_FDCWD, (folder + '/' + lock_file).c_str(), present) == 0 && held.st_ino == present.st_ino;
}

} // namespace

Result<std::shared_ptr<RecoveryFolder>, int> RecoveryFolder::make(SystemCalls& calls, const std::string& parent)
{
    int error = EAGAIN;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string path = parent + '/' + platform::random_uuid().text();
        if (const int refused = platform::make_private_folder(path))
            return fail(refused);
        Descriptor file = open_lock(calls, path, O_RDWR | O_CREAT);
        if (file && lock(calls, file) && is_in_place(calls, file, path))
            return std::make_shared<RecoveryFolder>(calls, path, std::move(file));
        error = errno;
        if (file && error != EAGAIN && error != EACCES) // ours: this disk has no locks, or is failing
            calls.remove_at(AT_FDCWD, (path + '/' + lock_file).c_str());
        calls.remove_at(AT_FDCWD, path.c_str(), AT_REMOVEDIR);
    }
    return fail(error);
}

std::shared_ptr<RecoveryFolder> RecoveryFolder::take_over(SystemCalls& calls, const std::string& path)
{
    Descriptor file = open_lock(calls, path, O_RDWR);
    if (!file && errno == ENOENT) // made and never used: only an empty folder goes
        calls.remove_at(AT_FDCWD, path.c_str(), AT_REMOVEDIR);
    if (!file || !lock(calls, file) || !is_in_place(calls, file, path))
        return nullptr;
    return std::make_shared<RecoveryFolder>(calls, path, std::move(file));
}

RecoveryFolder::RecoveryFolder(SystemCalls& calls, std::string path, Descriptor lock)
    : TreeLocation(std::move(path)), calls_(calls), lock_(std::move(lock))
{
}

RecoveryFolder::~RecoveryFolder()
{
    if (!abandoned_)
        return;
    for (const std::string& name : names_in(path()))
        if (name != lock_file)
            remove(name);
    remove(lock_file); // last: a folder without one is only removed when it is empty
    calls_.remove_at(AT_FDCWD, path().c_str(), AT_REMOVEDIR);
}

void RecoveryFolder::keep_only(const std::set<std::string>& names)
{
    std::set<std::string> read;
    for (const platform::Blob& blob : living()) {
        const platform::BlobSource source = blob.source();
        if (const auto* file = std::get_if<platform::StoredFile>(&source))
            read.insert(file->name);
    }
    for (const std::string& name : names_in(path()))
        if (name != note && name != lock_file && !names.contains(name) && !read.contains(name))
            remove(name);
}

void RecoveryFolder::abandon()
{
    abandoned_ = true;
    remove(note); // first: without it the rest is no snapshot
    keep_only({});
}

void RecoveryFolder::abandon_if_dead()
{
    const std::vector<std::string> names = names_in(path());
    abandoned_ = std::all_of(
        names.begin(), names.end(), [](const std::string& name) { return name != note && is_own_name(name); });
}

void RecoveryFolder::remove(const std::string& name) const
{
    calls_.remove_at(AT_FDCWD, inside(name).c_str());
}

} // namespace quillfern::grants
