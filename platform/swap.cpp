#include "platform/swap.h"

#include "platform/file_copy.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"

#include <linux/fs.h>

namespace quillfern::platform {
namespace {

/// What a rename that reported an error has done. A network file system may have renamed all the same.
enum class Renamed { no, yes, unknown };

Renamed look_again(SystemCalls& calls, const SwapNames& names)
{
    struct stat status = {};
    if (calls.status_at(names.parent, names.document.c_str(), status) != 0)
        return errno == ENOENT ? Renamed::no : Renamed::unknown;
    return status.st_ino == names.siblingInode ? Renamed::yes : Renamed::no;
}

SaveError swap_error(const SwapNames& names, int error)
{
    return save_error(SaveStep::swap, join_path(names.path, names.document), error);
}

/// When nobody can tell, both trees must stay.
Result<Done, SaveError> judge_rename(SystemCalls& calls, const SwapNames& names, int error)
{
    const Renamed renamed = look_again(calls, names);
    if (renamed == Renamed::yes)
        return Done{};
    SaveError failed = swap_error(names, error);
    if (renamed == Renamed::unknown)
        failed.problem = SaveProblem::notFlushed;
    return fail(std::move(failed));
}

/// A backup that an earlier crash has left is out of date once the document can be read: it becomes one more sibling.
int clear_backup_name(SystemCalls& calls, const SwapNames& names, const std::string& backup)
{
    const int error =
        rename_to_free_name(calls, names.parent, backup, names.parent, fresh_sibling_name(names.document));
    return error == ENOENT ? 0 : error;
}

/// Reading puts back what could not be put back here.
void put_back(SystemCalls& calls, const SwapNames& names, const std::string& backup)
{
    rename_to_free_name(calls, names.parent, backup, names.parent, names.document);
    retrying([&] { return calls.sync(names.parent); });
}

Result<Done, SaveError> exchange_in_two_steps(SystemCalls& calls, const SwapNames& names, const std::string& backup)
{
    if (const int error = rename_to_free_name(calls, names.parent, names.document, names.parent, backup))
        return fail(swap_error(names, error));
    if (const auto flushed = flush(calls, names.parent, names.path); !flushed)
        return flushed;
    return move_in(calls, names);
}

Result<std::string, SaveError> swap_in_two_steps(SystemCalls& calls, const SwapNames& names)
{
    const std::string backup = backup_name(names.document);
    if (const int error = clear_backup_name(calls, names, backup))
        return fail(swap_error(names, error));
    if (const auto exchanged = exchange_in_two_steps(calls, names, backup); !exchanged) {
        put_back(calls, names, backup);
        return fail(exchanged.error());
    }
    return backup;
}

} // namespace

Result<std::string, SaveError> swap_in(SystemCalls& calls, const SwapNames& names)
{
    if (calls.rename_at(names.parent, names.sibling.c_str(), names.parent, names.document.c_str(), RENAME_EXCHANGE)
        == 0)
        return names.sibling;
    const int error = errno;
    if (error == EINVAL || error == ENOSYS || error == EOPNOTSUPP)
        return swap_in_two_steps(calls, names);
    if (const auto renamed = judge_rename(calls, names, error); !renamed)
        return fail(renamed.error());
    return names.sibling;
}

Result<Done, SaveError> move_in(SystemCalls& calls, const SwapNames& names)
{
    const int error = rename_to_free_name(calls, names.parent, names.sibling, names.parent, names.document);
    if (error)
        return judge_rename(calls, names, error);
    return Done{};
}

} // namespace quillfern::platform
