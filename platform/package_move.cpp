#include "platform/package_move.h"

#include "platform/file_bytes.h"
#include "platform/file_copy.h"
#include "platform/hidden_names.h"
#include "platform/package_watch.h"
#include "platform/rename.h"
#include "platform/resolve.h"

namespace quillfern::platform {
namespace {

Result<Done, SaveError> check(const PackagePlace& place, const PackageLayout& layout, SystemCalls& calls)
{
    const auto refuse = [&](SaveProblem problem) {
        return fail(SaveError{problem, SaveStep::check, place.tree->path(), 0});
    };
    switch (compare_with_disk(place, layout, calls)) {
    case PackageChange::gone:
        return refuse(SaveProblem::gone);
    case PackageChange::changed:
        return refuse(SaveProblem::changedOnDisk);
    case PackageChange::same:
        break;
    }
    return Done{};
}

Result<Descriptor, SaveError> open_parent(SystemCalls& calls, const std::string& folder)
{
    Descriptor parent = open_folder(calls, folder);
    if (!parent && errno == ENOENT)
        return fail(SaveError{SaveProblem::noFolder, SaveStep::check, folder, ENOENT});
    if (!parent)
        return fail(save_error(SaveStep::check, folder, errno));
    return parent;
}

/// The new name first: of the two, it is the one that must not be lost.
Result<Done, SaveError> flush_both(SystemCalls& calls, int to, int from, const std::string& folder)
{
    for (const int parent : {to, from})
        if (const auto flushed = flush(calls, parent, folder); !flushed)
            return fail(SaveError{SaveProblem::notFlushed, SaveStep::flush, folder, flushed.error().systemError});
    return Done{};
}

/// A network disk may have renamed although it reported an error.
bool has_moved(SystemCalls& calls, const PackagePlace& place, int folder, const std::string& name)
{
    struct stat status = {};
    return calls.status_at(folder, name.c_str(), status) == 0 && status.st_ino == place.fingerprint.listing.inode
        && status.st_dev == place.fingerprint.listing.device;
}

} // namespace

Result<Done, SaveError> move_package(PackagePlace& place, const std::string& path, const PackageLayout& layout,
    const DocumentLock&, const DocumentLock&, SystemCalls& calls)
{
    const std::string target = resolve_document(path);
    const SplitPath from = split_path(place.tree->path());
    const SplitPath to = split_path(target);
    if (const auto checked = check(place, layout, calls); !checked)
        return checked;
    const auto old_parent = open_parent(calls, from.folder);
    if (!old_parent)
        return fail(old_parent.error());
    const auto new_parent = open_parent(calls, to.folder);
    if (!new_parent)
        return fail(new_parent.error());
    const int error = place.tree->move_to(target, [&] {
        const int renamed = rename_to_free_name(calls, old_parent->get(), from.name, new_parent->get(), to.name);
        return renamed && has_moved(calls, place, new_parent->get(), to.name) ? 0 : renamed;
    });
    if (error != 0)
        return fail(save_error(SaveStep::swap, target, error));
    return flush_both(calls, new_parent->get(), old_parent->get(), to.folder);
}

} // namespace quillfern::platform
