#include "platform/rename.h"

#include <linux/fs.h>

namespace quillfern::platform {

int rename_to_free_name(
    SystemCalls& calls, int from_folder, const std::string& from, int to_folder, const std::string& to)
{
    if (calls.rename_at(from_folder, from.c_str(), to_folder, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
        return errno;
    struct stat status = {};
    if (calls.status_at(to_folder, to.c_str(), status) == 0)
        return EEXIST;
    if (errno != ENOENT)
        return errno;
    return calls.rename_at(from_folder, from.c_str(), to_folder, to.c_str(), 0) == 0 ? 0 : errno;
}

} // namespace quillfern::platform
