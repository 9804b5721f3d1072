#include "platform/package_listing.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

#include <algorithm>
#include <fcntl.h>

namespace quillfern::platform {
namespace {

struct Entry {
    bool exists = false; ///< it may be gone since the folder was listed
    std::optional<FileStamp> regular; ///< absent for links, folders and everything else
};

/// What an entry is, by the entry itself and not by what it leads to.
Result<Entry, int> look_at(SystemCalls& calls, int folder, const std::string& name)
{
    struct stat status = {};
    if (calls.status_at(folder, name.c_str(), status) != 0)
        return errno == ENOENT ? Result<Entry, int>(Entry{}) : fail(int{errno});
    return Entry{true, S_ISREG(status.st_mode) ? std::optional(stamp_of(status)) : std::nullopt};
}

int list_attachments(SystemCalls& calls, int package, const PackageLayout& layout, PackageListing& listing)
{
    const Descriptor folder = open_folder_at(calls, package, layout.attachmentsFolder);
    if (!folder) {
        if (errno != ENOTDIR && errno != ELOOP)
            return errno;
        listing.unknownEntries.push_back(layout.attachmentsFolder);
        return 0;
    }
    listing.hasAttachmentsFolder = true;
    std::vector<std::string> names;
    if (calls.list(folder.get(), names) != 0)
        return errno;
    for (const std::string& name : names) {
        const auto entry = look_at(calls, folder.get(), name);
        if (!entry)
            return entry.error();
        if (entry->regular && !name.starts_with('.'))
            listing.attachments.emplace(name, *entry->regular);
        else if (entry->exists)
            listing.unknownEntries.push_back(layout.attachmentsFolder + '/' + name);
    }
    return 0;
}

int list_entry(
    SystemCalls& calls, int package, const PackageLayout& layout, const std::string& name, PackageListing& listing)
{
    if (name == layout.attachmentsFolder)
        return list_attachments(calls, package, layout, listing);
    if (name == unfinished_main_file)
        return 0;
    const auto entry = look_at(calls, package, name);
    if (!entry)
        return entry.error();
    if (entry->regular && name == layout.mainFile)
        listing.mainFile = *entry->regular;
    else if (entry->regular && name == layout.logoFile)
        listing.logo = *entry->regular;
    else if (entry->exists && !(entry->regular && name == layout.readMeFile))
        listing.unknownEntries.push_back(name);
    return 0;
}

bool known_attachments_changed(const StampedFiles& before, const StampedFiles& now)
{
    return std::any_of(before.begin(), before.end(), [&](const auto& entry) {
        const auto found = now.find(entry.first);
        return found == now.end() || !same_size_and_time(found->second, entry.second);
    });
}

bool logo_changed(const std::optional<FileStamp>& before, const std::optional<FileStamp>& now)
{
    return before.has_value() != now.has_value() || (before && !same_size_and_time(*before, *now));
}

Result<Sha256Value, int> hash_main_file(SystemCalls& calls, int package, const PackageLayout& layout)
{
    const Descriptor file = open_file(calls, package, layout.mainFile.c_str(), O_RDONLY);
    std::string text;
    if (!file)
        return fail(int{errno});
    if (const int error = read_bytes(calls, file.get(), layout.mainFileLimit, text))
        return fail(error);
    return sha256(text);
}

} // namespace

Result<PackageListing, int> list_package(SystemCalls& calls, int package, const PackageLayout& layout)
{
    PackageListing listing;
    struct stat status = {};
    std::vector<std::string> names;
    if (calls.status(package, status) != 0 || calls.list(package, names) != 0)
        return fail(int{errno});
    listing.device = status.st_dev;
    listing.inode = status.st_ino;
    for (const std::string& name : names)
        if (const int error = list_entry(calls, package, layout, name, listing))
            return fail(error);
    std::sort(listing.unknownEntries.begin(), listing.unknownEntries.end());
    return listing;
}

Result<Difference, int> compare_with(
    SystemCalls& calls, const Fingerprint& before, const PackageListing& now, int package, const PackageLayout& layout)
{
    const PackageListing& old = before.listing;
    if (!now.mainFile || logo_changed(old.logo, now.logo)
        || known_attachments_changed(old.attachments, now.attachments))
        return Difference::records;
    if (now.device == old.device && now.inode == old.inode && now.mainFile == old.mainFile)
        return Difference::none;
    if (now.mainFile->size != old.mainFile->size)
        return Difference::records;
    const auto hash = hash_main_file(calls, package, layout);
    if (!hash)
        return fail(hash.error());
    return *hash == before.mainHash ? Difference::none : Difference::records;
}

bool is_desktop_litter(std::string_view entry)
{
    const std::string_view name = entry.substr(entry.find_last_of('/') + 1);
    return name == ".DS_Store" || name == ".directory" || name == "Thumbs.db" || name == "desktop.ini"
        || name.starts_with("._");
}

} // namespace quillfern::platform
