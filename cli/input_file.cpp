#include "cli/input_file.h"

#include "platform/descriptor.h"
#include "platform/file_bytes.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <system_error>

namespace quillfern::cli {

namespace {

constexpr std::int64_t bytes_in_a_megabyte = 1'000'000;

std::string why_not(const std::string& path, int error, std::int64_t limit)
{
    if (error == ENOENT)
        return "There is no file at " + path + ".";
    if (error == EFBIG)
        return path + " is larger than " + std::to_string(limit / bytes_in_a_megabyte) + " MB.";
    return path + " could not be read: " + std::strerror(error) + ".";
}

/// 0 or an errno. A pipe or a device could make the program wait for ever, so only a regular file is read.
int read_regular_file(const std::string& path, std::int64_t limit, std::string& bytes)
{
    platform::SystemCalls& calls = platform::system_calls();
    const platform::Descriptor file = platform::open_file(calls, AT_FDCWD, path.c_str(), O_RDONLY);
    struct stat status { };
    if (!file || calls.status(file.get(), status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return platform::read_bytes(calls, file.get(), limit, bytes);
}

} // namespace

Result<std::string, std::string> read_input_file(const std::string& path, std::int64_t limit)
{
    std::error_code unresolved;
    const std::filesystem::path real = std::filesystem::canonical(path, unresolved); // a link to the file will do
    std::string bytes;
    const int error = unresolved ? unresolved.value() : read_regular_file(real.string(), limit, bytes);
    if (error != 0)
        return fail(why_not(path, error, limit));
    return bytes;
}

} // namespace quillfern::cli
