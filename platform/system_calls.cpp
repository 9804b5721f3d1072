#include "platform/system_calls.h"

#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillfern::platform {

int SystemCalls::open_at(int folder, const char* name, int flags, mode_t mode)
{
    return openat(folder, name, flags | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, mode);
}

int SystemCalls::close(int file)
{
    return ::close(file);
}

ssize_t SystemCalls::read(int file, void* bytes, std::size_t count)
{
    return ::read(file, bytes, count);
}

ssize_t SystemCalls::write(int file, const void* bytes, std::size_t count)
{
    return ::write(file, bytes, count);
}

int SystemCalls::sync(int file)
{
    return fsync(file);
}

int SystemCalls::status(int file, struct stat& status)
{
    return fstat(file, &status);
}

int SystemCalls::status_at(int folder, const char* name, struct stat& status)
{
    return fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW);
}

int SystemCalls::may_write_at(int folder, const char* name)
{
    return faccessat(folder, name, W_OK, AT_EACCESS);
}

int SystemCalls::list(int folder, std::vector<std::string>& names)
{
    const int copy = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (copy < 0)
        return -1;
    DIR* stream = fdopendir(copy);
    if (!stream) {
        ::close(copy);
        return -1;
    }
    errno = 0;
    while (const dirent* entry = readdir(stream)) {
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.emplace_back(entry->d_name);
        errno = 0;
    }
    const int error = errno;
    closedir(stream);
    errno = error;
    return error == 0 ? 0 : -1;
}

int SystemCalls::make_folder_at(int folder, const char* name, mode_t mode)
{
    return mkdirat(folder, name, mode);
}

int SystemCalls::remove_at(int folder, const char* name, int flags)
{
    return unlinkat(folder, name, flags);
}

int SystemCalls::link_at(int from_folder, const char* from, int to_folder, const char* to)
{
    return linkat(from_folder, from, to_folder, to, 0);
}

int SystemCalls::rename_at(int from_folder, const char* from, int to_folder, const char* to, unsigned flags)
{
    return renameat2(from_folder, from, to_folder, to, flags);
}

int SystemCalls::clone(int to, int from)
{
    return ioctl(to, FICLONE, from);
}

int SystemCalls::set_times(int file, const struct timespec times[2])
{
    return futimens(file, times);
}

int SystemCalls::set_mode(int file, mode_t mode)
{
    return fchmod(file, mode);
}

int SystemCalls::set_owner(int file, uid_t owner, gid_t group)
{
    return fchown(file, owner, group);
}

ssize_t SystemCalls::list_attributes(int file, char* names, std::size_t size)
{
    return flistxattr(file, names, size);
}

ssize_t SystemCalls::attribute(int file, const char* name, void* value, std::size_t size)
{
    return fgetxattr(file, name, value, size);
}

int SystemCalls::set_attribute(int file, const char* name, const void* value, std::size_t size)
{
    return fsetxattr(file, name, value, size, 0);
}

int SystemCalls::lock(int file)
{
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return fcntl(file, F_OFD_SETLK, &whole);
}

SystemCalls& system_calls()
{
    static SystemCalls calls;
    return calls;
}

} // namespace quillfern::platform
