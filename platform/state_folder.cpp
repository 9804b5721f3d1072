#include "platform/state_folder.h"

#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>

namespace quillfern::platform {
namespace {

constexpr mode_t for_the_user = 0700;

bool is_folder(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::string state_folder()
{
    // The specification asks for relative paths to be ignored.
    if (const char* folder = std::getenv("XDG_STATE_HOME"); folder && *folder == '/')
        return std::string(folder) + "/quillfern";
    const char* home = std::getenv("HOME");
    return std::string(home ? home : "") + "/.local/state/quillfern";
}

int make_private_folder(const std::string& path)
{
    if (path.empty() || is_folder(path))
        return 0;
    const std::size_t slash = path.find_last_of('/');
    if (slash != std::string::npos && slash > 0)
        if (const int error = make_private_folder(path.substr(0, slash)))
            return error;
    return mkdir(path.c_str(), for_the_user) == 0 || errno == EEXIST ? 0 : errno;
}

} // namespace quillfern::platform
