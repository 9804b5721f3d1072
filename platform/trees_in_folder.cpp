#include "platform/displaced_trees.h"

#include "platform/clock.h"
#include "platform/file_bytes.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"
#include "platform/whole_tree.h"

#include "base/instant.h"

#include <algorithm>
#include <fcntl.h>

namespace quillfern::platform {
namespace {

/// "Pantry.quillfern-20260307T140322125Z-0f3a99c1": sorts by time.
std::string fresh_version_name(const std::string& document)
{
    std::string moment = now().text();
    std::erase_if(moment, [](char each) { return each == '-' || each == ':' || each == '.'; });
    const std::string name = split_path(document).name;
    const std::string sibling = fresh_sibling_name(name); // ".~NAME-<8 hex>~"
    const std::string ending = '-' + moment + sibling.substr(sibling.size() - 10, 9);
    return shortened(name, longest_file_name - ending.size()) + ending;
}

int flush_folder(SystemCalls& calls, const std::string& path)
{
    const Descriptor folder = open_folder(calls, path);
    return folder && retrying([&] { return calls.sync(folder.get()); }) == 0 ? 0 : errno;
}

/// Under a hidden name until it is whole. What fails is removed here, or as a leftover by whoever looks after the
/// folder.
int copy_there(SystemCalls& calls, const std::string& from, const std::string& to, const std::string& like)
{
    const SplitPath split = split_path(to);
    const std::string hidden = join_path(split.folder, fresh_sibling_name("copy"));
    int error = copy_whole_tree(calls, from, hidden, like);
    if (!error)
        error = rename_to_free_name(calls, AT_FDCWD, hidden, AT_FDCWD, to);
    if (!error)
        return flush_folder(calls, split.folder);
    remove_whole_tree(calls, hidden);
    return error;
}

} // namespace

Result<Done, int> TreesInFolder::take(const std::string& document, const std::shared_ptr<TreeLocation>& tree)
{
    const std::string from = tree->path();
    const std::string to = join_path(folder_, fresh_version_name(document));
    int error = tree->move_to(to, [&] { return rename_to_free_name(calls_, AT_FDCWD, from, AT_FDCWD, to); });
    if (error == EXDEV) {
        error = copy_there(calls_, from, to, like_);
        if (!error)
            tree->set_path(to);
        if (!error)
            remove_whole_tree(calls_, from); // What cannot be removed now is removed as a leftover.
    }
    if (error)
        return fail(error);
    return Done{};
}

} // namespace quillfern::platform
