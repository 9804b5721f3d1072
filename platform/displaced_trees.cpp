#include "platform/displaced_trees.h"

#include "platform/file_bytes.h"
#include "platform/file_copy.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"

#include <algorithm>
#include <fcntl.h>

namespace quillfern::platform {
namespace {

/// A version's folder may have been made read-only; it is ours to empty all the same.
Descriptor open_to_empty(SystemCalls& calls, int folder, const char* name)
{
    Descriptor opened = open_file(calls, folder, name, O_RDONLY | O_DIRECTORY);
    struct stat status = {};
    if (opened && calls.status(opened.get(), status) == 0 && (status.st_mode & 0700) != 0700)
        calls.set_mode(opened.get(), (status.st_mode & 07777) | 0700);
    return opened;
}

int remove_entry(SystemCalls& calls, int folder, const std::string& name, int flags = 0)
{
    return calls.remove_at(folder, name.c_str(), flags) == 0 || errno == ENOENT ? 0 : errno;
}

int remove_attachments(SystemCalls& calls, int package, const PackageLayout& layout, const PackageListing& listing)
{
    if (!listing.hasAttachmentsFolder)
        return 0;
    const Descriptor folder = open_to_empty(calls, package, layout.attachmentsFolder.c_str());
    if (!folder)
        return errno;
    int first_error = 0;
    for (const auto& [name, stamp] : listing.attachments)
        if (const int error = remove_entry(calls, folder.get(), name); error && !first_error)
            first_error = error;
    if (first_error)
        return first_error;
    return remove_entry(calls, package, layout.attachmentsFolder, AT_REMOVEDIR);
}

int remove_contents(SystemCalls& calls, int package, const PackageLayout& layout)
{
    const auto listing = list_package(calls, package, layout);
    if (!listing)
        return listing.error();
    for (const std::string& name :
        {layout.mainFile, std::string(unfinished_main_file), layout.logoFile, layout.readMeFile})
        if (const int error = name.empty() ? 0 : remove_entry(calls, package, name))
            return error;
    return remove_attachments(calls, package, layout, *listing);
}

int read_into_memory(SystemCalls& calls, const TreeLocation& tree)
{
    for (const Blob& blob : tree.living()) {
        const auto bytes = blob.read(calls);
        if (!bytes)
            return bytes.error().systemError != 0 ? bytes.error().systemError : ESTALE;
        blob.move_to(*bytes);
    }
    return 0;
}

std::string numbered(const std::string& name, int number)
{
    return number == 1 ? name : name + ' ' + std::to_string(number);
}

int move_entry(SystemCalls& calls, int from, int to, const std::string& entry)
{
    for (int number = 1;; ++number) {
        const int error = rename_to_free_name(calls, from, entry, to, numbered(entry, number));
        if (error != EEXIST || number == 1000)
            return error;
    }
}

} // namespace

int remove_tree(SystemCalls& calls, const std::string& path, const PackageLayout& layout)
{
    {
        const Descriptor package = open_to_empty(calls, AT_FDCWD, path.c_str());
        if (!package)
            return errno == ENOENT ? 0 : errno;
        if (const int error = remove_contents(calls, package.get(), layout))
            return error;
    }
    return remove_entry(calls, AT_FDCWD, path, AT_REMOVEDIR);
}

int discard_tree(SystemCalls& calls, const std::shared_ptr<TreeLocation>& tree, const std::string& package,
    const PackageLayout& layout)
{
    const std::string path = tree->path();
    if (const int error = read_into_memory(calls, *tree))
        return error;
    {
        const Descriptor folder = open_to_empty(calls, AT_FDCWD, path.c_str());
        if (!folder)
            return errno == ENOENT ? 0 : errno;
        const auto listing = list_package(calls, folder.get(), layout);
        if (!listing)
            return listing.error();
        if (const int error = move_entries(calls, path, package, listing->unknownEntries))
            return error;
    }
    return remove_tree(calls, path, layout);
}

int move_entries(
    SystemCalls& calls, const std::string& from, const std::string& to, const std::vector<std::string>& entries)
{
    if (entries.empty())
        return 0;
    const Descriptor source = open_to_empty(calls, AT_FDCWD, from.c_str());
    const Descriptor target = open_folder(calls, to);
    if (!source || !target)
        return errno;
    for (const std::string& entry : entries) {
        const SplitPath split = split_path(entry);
        if (split.folder != "." && calls.make_folder_at(target.get(), split.folder.c_str(), 0777) != 0
            && errno != EEXIST)
            return errno;
        if (const int error = move_entry(calls, source.get(), target.get(), entry))
            return error;
        const Descriptor inner = open_folder_at(calls, target.get(), split.folder);
        if (!inner || retrying([&] { return calls.sync(inner.get()); }) != 0)
            return errno;
    }
    return retrying([&] { return calls.sync(target.get()); }) == 0 ? 0 : errno;
}

Result<Done, int> keep_as_conflict(
    SystemCalls& calls, const std::shared_ptr<TreeLocation>& tree, const std::string& document, const std::string& date)
{
    const SplitPath split = split_path(document);
    const std::size_t dot = split.name.find_last_of('.');
    const std::string stem = split.name.substr(0, dot);
    const std::string ending = dot == std::string::npos ? "" : split.name.substr(dot);
    for (int number = 1; number <= 1000; ++number) {
        const std::string name = stem + " (conflict, " + numbered(date, number) + ")" + ending;
        const std::string path = join_path(split.folder, name);
        const std::string from = tree->path();
        const int error =
            tree->move_to(path, [&] { return rename_to_free_name(calls, AT_FDCWD, from, AT_FDCWD, path); });
        if (error == EEXIST)
            continue;
        if (error)
            return fail(error);
        const Descriptor folder = open_folder(calls, split.folder);
        if (folder)
            retrying([&] { return calls.sync(folder.get()); }); // Under either name the tree is there.
        return Done{};
    }
    return fail(EEXIST);
}

} // namespace quillfern::platform
