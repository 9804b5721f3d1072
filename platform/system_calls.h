#pragma once

#include <cerrno>
#include <cstddef>
#include <ctime>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace quillfern::platform {

/// The calls to the operating system that reading and saving documents make, in one replaceable object.
///
/// Each makes one call and reports as the system does: -1 and errno. Nothing is retried here, so that a test which
/// fails the Nth call sees what the callers make of it. No path is ever followed through a link, and every descriptor
/// is closed when another program is started. Callable from several threads at once.
class SystemCalls {
public:
    virtual ~SystemCalls() = default;

    /// `folder` may be AT_FDCWD; O_CLOEXEC, O_NOFOLLOW and O_NONBLOCK are added to `flags`.
    virtual int open_at(int folder, const char* name, int flags, mode_t mode = 0);
    virtual int close(int file);
    virtual ssize_t read(int file, void* bytes, std::size_t count);
    virtual ssize_t write(int file, const void* bytes, std::size_t count);
    virtual int sync(int file);

    virtual int status(int file, struct stat& status);
    virtual int status_at(int folder, const char* name, struct stat& status);
    virtual int may_write_at(int folder, const char* name); ///< whether permissions and mount allow it
    virtual int list(int folder, std::vector<std::string>& names); ///< without "." and ".."

    virtual int make_folder_at(int folder, const char* name, mode_t mode);
    virtual int remove_at(int folder, const char* name, int flags = 0);
    virtual int link_at(int from_folder, const char* from, int to_folder, const char* to);
    virtual int rename_at(int from_folder, const char* from, int to_folder, const char* to, unsigned flags);
    virtual int clone(int to, int from); ///< shares the data blocks (FICLONE)

    virtual int set_times(int file, const struct timespec times[2]);
    virtual int set_mode(int file, mode_t mode);
    virtual int set_owner(int file, uid_t owner, gid_t group);
    virtual ssize_t list_attributes(int file, char* names, std::size_t size);
    virtual ssize_t attribute(int file, const char* name, void* value, std::size_t size);
    virtual int set_attribute(int file, const char* name, const void* value, std::size_t size);

    virtual int lock(int file); ///< an exclusive lock of the open file description, without waiting
};

/// The real ones.
SystemCalls& system_calls();

/// Repeats a call that a signal interrupted. Not for renames, which may have happened all the same.
template <class Call>
auto retrying(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace quillfern::platform
