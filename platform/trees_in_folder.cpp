#include "platform/displaced_trees.h"
#include "platform/file_bytes.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"

#include "base/instant.h"
#include "platform/clock.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;

/// "Pantry.quillfern-20260307T140322125Z-0f3a99c1": sorts by time.
std::string fresh_version_name(const std::string& document)
{
    std::string moment = now().text();
    std::erase_if(moment, [](char each) { return each == '-' || each == ':' || each == '.'; });
    const std::string sibling = fresh_sibling_name(split_path(document).name); // ".~NAME-<8 hex>~"
    const std::size_t hyphen = sibling.find_last_of('-');
    return sibling.substr(2, hyphen - 2) + '-' + moment + '-' + sibling.substr(hyphen + 1, 8);
}

int flush_all(SystemCalls& calls, const std::string& path)
{
    std::error_code error;
    std::vector<std::string> paths{path};
    for (fs::recursive_directory_iterator each(path, error), end; !error && each != end; each.increment(error))
        if (!each->is_symlink() && (each->is_regular_file() || each->is_directory()))
            paths.push_back(each->path());
    for (const std::string& each : paths) {
        const Descriptor file = open_file(calls, AT_FDCWD, each.c_str(), O_RDONLY);
        if (!file || retrying([&] { return calls.sync(file.get()); }) != 0)
            return errno;
    }
    return error.value();
}

/// Copies keep their times to the nanosecond where the disk can; blobs compare them, so a disk that rounds them is
/// refused.
int keep_times(const std::string& from, const std::string& to)
{
    std::error_code error;
    for (fs::recursive_directory_iterator each(from, error), end; !error && each != end; each.increment(error)) {
        if (each->is_symlink() || !each->is_regular_file())
            continue;
        const fs::path copy = to / each->path().lexically_relative(from);
        const auto time = each->last_write_time(error);
        fs::last_write_time(copy, time, error);
        if (error || fs::last_write_time(copy, error) != time)
            return error ? error.value() : EOPNOTSUPP;
    }
    return error.value();
}

int copy_to_other_disk(SystemCalls& calls, const std::string& from, const std::string& to)
{
    std::error_code failed;
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks, failed);
    int error = failed.value();
    if (!error)
        error = keep_times(from, to);
    if (!error)
        error = flush_all(calls, to);
    fs::remove_all(error ? to : from, failed);
    return error;
}

} // namespace

Result<Done, int> TreesInFolder::take(const std::string& document, const std::shared_ptr<TreeLocation>& tree)
{
    const std::string to = join_path(folder_, fresh_version_name(document));
    int error = rename_to_free_name(calls_, AT_FDCWD, tree->path(), AT_FDCWD, to);
    if (error == EXDEV)
        error = copy_to_other_disk(calls_, tree->path(), to);
    if (error)
        return fail(error);
    tree->set_path(to);
    return Done{};
}

} // namespace quillfern::platform
