#include "platform/save_error.h"

#include <cerrno>
#include <utility>

namespace quillfern::platform {
namespace {

SaveProblem problem_of(int system_error)
{
    switch (system_error) {
    case ENOSPC:
    case EDQUOT:
        return SaveProblem::diskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return SaveProblem::readOnly;
    case EEXIST:
    case ENOTEMPTY:
        return SaveProblem::exists;
    default:
        return SaveProblem::failed;
    }
}

} // namespace

SaveError save_error(SaveStep step, std::string path, int system_error)
{
    return {problem_of(system_error), step, std::move(path), system_error};
}

} // namespace quillfern::platform
