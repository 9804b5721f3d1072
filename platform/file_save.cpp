#include "platform/file_save.h"

#include "platform/file_bytes.h"
#include "platform/file_copy.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"
#include "platform/resolve.h"

#include <fcntl.h>

namespace quillfern::platform {
namespace {

SaveError check_error(SaveProblem problem, const std::string& path, int error = 0)
{
    return {problem, SaveStep::check, path, error};
}

/// The present file, open for its attributes; closed when the name is free.
Result<Descriptor, SaveError> look_at(
    SystemCalls& calls, int parent, const std::string& name, const std::string& path, Overwrite overwrite)
{
    struct stat status = {};
    if (calls.status_at(parent, name.c_str(), status) != 0)
        return errno == ENOENT ? Result<Descriptor, SaveError>(Descriptor{})
                               : fail(save_error(SaveStep::check, path, errno));
    if (overwrite == Overwrite::refuse)
        return fail(check_error(SaveProblem::exists, path));
    if (!S_ISREG(status.st_mode))
        return fail(check_error(SaveProblem::notAPackage, path));
    if (calls.may_write_at(parent, name.c_str()) != 0)
        return fail(save_error(SaveStep::check, path, errno));
    return open_file(calls, parent, name.c_str(), O_RDONLY); // Unreadable: then its attributes are not taken over.
}

int move_to(SystemCalls& calls, int parent, const std::string& aside, const std::string& name, Overwrite overwrite)
{
    if (overwrite == Overwrite::refuse)
        return rename_to_free_name(calls, parent, aside, parent, name);
    return calls.rename_at(parent, aside.c_str(), parent, name.c_str(), 0) == 0 ? 0 : errno;
}

} // namespace

Result<Done, SaveError> save_file(
    const std::string& path, std::string_view bytes, Overwrite overwrite, SystemCalls& calls)
{
    const std::string resolved = resolve_document(path);
    const SplitPath split = split_path(resolved);
    const Descriptor parent = open_folder(calls, split.folder);
    if (!parent && (errno == ENOENT || errno == ENOTDIR))
        return fail(check_error(SaveProblem::noFolder, split.folder, errno));
    if (!parent)
        return fail(save_error(SaveStep::check, split.folder, errno));
    const auto present = look_at(calls, parent.get(), split.name, resolved, overwrite);
    if (!present)
        return fail(present.error());

    const std::string aside = fresh_sibling_name(split.name);
    const auto written = write_new_file(calls, {parent.get(), split.folder}, aside, bytes, present->get());
    const int error = written ? move_to(calls, parent.get(), aside, split.name, overwrite) : 0;
    if (!written || error) {
        calls.remove_at(parent.get(), aside.c_str());
        return fail(written ? save_error(SaveStep::swap, resolved, error) : written.error());
    }
    if (const auto flushed = flush(calls, parent.get(), split.folder); !flushed)
        return fail(SaveError{SaveProblem::notFlushed, SaveStep::flush, split.folder, flushed.error().systemError});
    return Done{};
}

} // namespace quillfern::platform
