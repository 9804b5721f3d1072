#pragma once

#include <cstdint>
#include <sys/stat.h>

namespace quillfern::platform {

/// What tells without reading that a file is still the one that was seen.
///
/// Size and time travel with a copy, a restore from a backup and a synchronised folder; the inode does not. The time of
/// the last status change (ctime) is left out: a hard link changes it.
struct FileStamp {
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< nanoseconds since 1970
    std::uint64_t inode = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

inline FileStamp stamp_of(const struct stat& status)
{
    return {status.st_size, status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec, status.st_ino};
}

/// For attachments, which are too big to be read again at every save.
inline bool same_size_and_time(const FileStamp& a, const FileStamp& b)
{
    return a.size == b.size && a.modified == b.modified;
}

} // namespace quillfern::platform
