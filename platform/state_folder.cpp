#include "platform/state_folder.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

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

/// A power failure should not take a folder from under what is flushed inside it. Not every disk can promise that.
void flush_parent(const std::string& path)
{
    if (const Descriptor parent = open_folder(system_calls(), split_path(path).folder))
        retrying([&] { return system_calls().sync(parent.get()); });
}

} // namespace

std::string state_folder()
{
    // The freedesktop.org rules for this variable ask for relative paths to be ignored.
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
    if (mkdir(path.c_str(), for_the_user) != 0 && errno != EEXIST)
        return errno;
    if (!is_folder(path)) // but when another program was faster, it is one
        return ENOTDIR;
    flush_parent(path);
    return 0;
}

} // namespace quillfern::platform
