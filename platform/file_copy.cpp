#include "platform/file_copy.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

#include <fcntl.h>
#include <vector>

namespace quillfern::platform {
namespace {

/// Security labels and the like belong to the place and the program, not to the document.
bool is_copied_attribute(std::string_view name)
{
    return name.starts_with("user.") || name.starts_with("system.posix_acl_");
}

void copy_attribute(SystemCalls& calls, int from, int to, const char* name)
{
    std::vector<char> value(64 * 1024); // the kernel's limit of one value
    const ssize_t size = calls.attribute(from, name, value.data(), value.size());
    if (size >= 0)
        calls.set_attribute(to, name, value.data(), static_cast<std::size_t>(size));
}

void copy_extended_attributes(SystemCalls& calls, int from, int to)
{
    std::vector<char> names(64 * 1024); // the kernel's limit of all names
    const ssize_t size = calls.list_attributes(from, names.data(), names.size());
    for (ssize_t start = 0; start < size;) {
        const char* name = names.data() + start;
        if (is_copied_attribute(name))
            copy_attribute(calls, from, to, name);
        start += static_cast<ssize_t>(std::string_view(name).size()) + 1;
    }
}

SaveError at(SaveStep step, const TargetFolder& target, const std::string& name, int error)
{
    return save_error(step, join_path(target.path, name), error);
}

Descriptor create(SystemCalls& calls, const TargetFolder& target, const std::string& name)
{
    return open_file(calls, target.folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
}

/// Flushes and closes a finished file; its stamp is taken last, since a network file system may set the time on
/// closing.
Result<FileStamp, SaveError> finish(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, Descriptor file)
{
    if (retrying([&] { return calls.sync(file.get()); }) != 0)
        return fail(at(SaveStep::flush, target, name, errno));
    if (const int error = file.close())
        return fail(at(SaveStep::flush, target, name, error));
    struct stat status = {};
    if (calls.status_at(target.folder, name.c_str(), status) != 0)
        return fail(at(SaveStep::build, target, name, errno));
    return stamp_of(status);
}

SaveError changed(const TargetFolder& target, const std::string& name)
{
    return {SaveProblem::changedOnDisk, SaveStep::build, join_path(target.path, name), 0};
}

Result<Done, SaveError> still(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, const FileStamp& expected)
{
    struct stat status = {};
    if (calls.status(from, status) != 0)
        return fail(at(SaveStep::build, target, name, errno));
    if (!S_ISREG(status.st_mode) || !same_size_and_time(stamp_of(status), expected))
        return fail(changed(target, name));
    return Done{};
}

/// What a copy has in common with its model besides the bytes.
Result<FileStamp, SaveError> finish_like(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, Descriptor file)
{
    copy_attributes(calls, from, file.get());
    struct stat status = {};
    if (calls.status(from, status) != 0)
        return fail(at(SaveStep::build, target, name, errno));
    const struct timespec times[2] = {status.st_atim, status.st_mtim};
    calls.set_times(file.get(), times); // A file system without times still has the bytes.
    return finish(calls, target, name, std::move(file));
}

} // namespace

void copy_attributes(SystemCalls& calls, int from, int to)
{
    struct stat status = {};
    if (calls.status(from, status) != 0)
        return;
    struct stat present = {};
    const bool same_owner =
        calls.status(to, present) == 0 && present.st_uid == status.st_uid && present.st_gid == status.st_gid;
    if (!same_owner && calls.set_owner(to, status.st_uid, status.st_gid) != 0)
        calls.set_owner(to, static_cast<uid_t>(-1), status.st_gid);
    calls.set_mode(to, status.st_mode & 07777); // after the owner, whose change clears set-id bits
    copy_extended_attributes(calls, from, to);
}

Result<FileStamp, SaveError> write_new_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, std::string_view bytes, int like)
{
    Descriptor file = create(calls, target, name);
    if (!file)
        return fail(at(SaveStep::build, target, name, errno));
    if (const int error = write_bytes(calls, file.get(), bytes))
        return fail(at(SaveStep::build, target, name, error));
    if (like >= 0)
        copy_attributes(calls, like, file.get());
    return finish(calls, target, name, std::move(file));
}

Result<FileStamp, SaveError> copy_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, const FileStamp& expected)
{
    // Looked at before, so that nothing is copied in vain, and after, when it can have changed under the copying.
    if (const auto good = still(calls, target, name, from, expected); !good)
        return fail(good.error());
    Descriptor file = create(calls, target, name);
    if (!file)
        return fail(at(SaveStep::build, target, name, errno));
    std::int64_t copied = 0;
    if (const int error = copy_bytes(calls, from, file.get(), copied))
        return fail(at(SaveStep::build, target, name, error));
    if (copied != expected.size)
        return fail(changed(target, name));
    if (const auto good = still(calls, target, name, from, expected); !good)
        return fail(good.error());
    return finish_like(calls, target, name, from, std::move(file));
}

Result<std::optional<FileStamp>, SaveError> clone_file(
    SystemCalls& calls, const TargetFolder& target, const std::string& name, int from, const FileStamp& expected)
{
    Descriptor file = create(calls, target, name);
    if (!file)
        return fail(at(SaveStep::build, target, name, errno));
    if (calls.clone(file.get(), from) != 0) {
        file.close();
        if (calls.remove_at(target.folder, name.c_str()) != 0)
            return fail(at(SaveStep::build, target, name, errno));
        return std::optional<FileStamp>();
    }
    if (const auto good = still(calls, target, name, from, expected); !good)
        return fail(good.error());
    auto stamp = finish_like(calls, target, name, from, std::move(file));
    if (!stamp)
        return fail(stamp.error());
    return std::optional(*stamp);
}

Result<bool, SaveError> link_file(SystemCalls& calls, const TargetFolder& target, int from, const std::string& name,
    const std::string& as, const FileStamp& expected)
{
    if (retrying([&] { return calls.link_at(from, name.c_str(), target.folder, as.c_str()); }) != 0) {
        const int error = errno;
        // FAT and some network mounts cannot link; the kernel may forbid linking other users' files.
        if (error == EPERM || error == EMLINK || error == EXDEV || error == EOPNOTSUPP || error == ENOSYS
            || error == EACCES)
            return false;
        return fail(at(SaveStep::build, target, as, error));
    }
    struct stat status = {};
    if (calls.status_at(target.folder, as.c_str(), status) != 0)
        return fail(at(SaveStep::build, target, as, errno));
    if (!S_ISREG(status.st_mode) || !same_size_and_time(stamp_of(status), expected))
        return fail(changed(target, as));
    return true;
}

Result<Done, SaveError> flush(SystemCalls& calls, int file, const std::string& path)
{
    if (retrying([&] { return calls.sync(file); }) != 0)
        return fail(save_error(SaveStep::flush, path, errno));
    return Done{};
}

} // namespace quillfern::platform
