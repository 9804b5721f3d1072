#include "platform/file_bytes.h"

#include <algorithm>
#include <fcntl.h>

namespace quillfern::platform {

int read_bytes(SystemCalls& calls, int file, std::int64_t limit, std::string& bytes)
{
    struct stat status = {};
    if (calls.status(file, status) != 0)
        return errno;
    if (status.st_size > limit)
        return EFBIG;
    const std::size_t most = static_cast<std::size_t>(limit) + 1; // one more byte shows that the file has grown past it
    std::size_t filled = 0;
    bytes.resize(std::min(most, static_cast<std::size_t>(status.st_size) + 1));
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(std::min(most, 2 * filled));
        const ssize_t count = retrying([&] { return calls.read(file, bytes.data() + filled, bytes.size() - filled); });
        if (count < 0)
            return errno;
        filled += static_cast<std::size_t>(count);
        if (filled == most)
            return EFBIG;
        if (count == 0) {
            bytes.resize(filled);
            return 0;
        }
    }
}

int write_bytes(SystemCalls& calls, int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = retrying([&] { return calls.write(file, bytes.data(), bytes.size()); });
        if (count < 0)
            return errno;
        if (count == 0)
            return EIO;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int copy_bytes(SystemCalls& calls, int from, int to, std::int64_t& copied)
{
    std::string piece(1024 * 1024, '\0');
    copied = 0;
    for (;;) {
        const ssize_t count = retrying([&] { return calls.read(from, piece.data(), piece.size()); });
        if (count < 0)
            return errno;
        if (count == 0)
            return 0;
        if (const int error =
                write_bytes(calls, to, std::string_view(piece).substr(0, static_cast<std::size_t>(count))))
            return error;
        copied += count;
    }
}

Descriptor open_stored(const StoredFile& file, SystemCalls& calls)
{
    Descriptor folder = open_folder(calls, file.tree->path());
    if (folder && !file.folder.empty())
        folder = open_folder_at(calls, folder.get(), file.folder);
    if (!folder)
        return {};
    return open_file(calls, folder.get(), file.name.c_str(), O_RDONLY);
}

Descriptor open_folder(SystemCalls& calls, const std::string& path)
{
    return open_file(calls, AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY);
}

Descriptor open_folder_to_pass(SystemCalls& calls, const std::string& path)
{
    return open_file(calls, AT_FDCWD, path.c_str(), O_PATH | O_DIRECTORY);
}

Descriptor open_folder_at(SystemCalls& calls, int folder, const std::string& name)
{
    return open_file(calls, folder, name.c_str(), O_RDONLY | O_DIRECTORY);
}

} // namespace quillfern::platform
