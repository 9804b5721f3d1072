#include "platform/runtime_folder.h"

#include "platform/hidden_names.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

using FolderResult = Result<std::string, RuntimeFolderError>;

/// Makes the folder when it is missing. In /tmp anybody could have made it first, so it must be a real folder that is
/// ours alone.
FolderResult private_folder(const std::string& path, SystemCalls& calls)
{
    if (calls.make_folder_at(AT_FDCWD, path.c_str(), 0700) != 0 && errno != EEXIST)
        return fail(RuntimeFolderError{errno, path});
    struct stat status = {};
    if (calls.status_at(AT_FDCWD, path.c_str(), status) != 0)
        return fail(RuntimeFolderError{errno, path});
    if (!S_ISDIR(status.st_mode) || status.st_uid != geteuid() || (status.st_mode & 077) != 0)
        return fail(RuntimeFolderError{EPERM, path});
    return path;
}

} // namespace

FolderResult runtime_folder(SystemCalls& calls)
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime == '/')
        if (auto folder = private_folder(join_path(runtime, "quillfern"), calls))
            return folder;
    return private_folder("/tmp/quillfern-" + std::to_string(geteuid()), calls);
}

} // namespace quillfern::platform
