#include "platform/package_watch.h"

#include "platform/file_bytes.h"

namespace quillfern::platform {
namespace {

bool still_holds(const PackageListing& listing, const StoredFile& file, const PackageLayout& layout)
{
    if (file.folder.empty())
        return file.name == layout.logoFile && listing.logo && same_size_and_time(*listing.logo, file.stamp);
    const auto found = listing.attachments.find(file.name);
    return found != listing.attachments.end() && same_size_and_time(found->second, file.stamp);
}

} // namespace

PackageChange compare_with_disk(const PackagePlace& place, const PackageLayout& layout, SystemCalls& calls)
{
    const Descriptor package = open_folder(calls, place.tree->path());
    if (!package)
        return errno == ENOENT || errno == ENOTDIR || errno == ELOOP || errno == ENODEV ? PackageChange::gone
                                                                                        : PackageChange::same;
    const auto listing = list_package(calls, package.get(), layout);
    if (!listing)
        return PackageChange::same;
    if (!listing->mainFile)
        return PackageChange::gone;
    const auto difference = compare_with(calls, place.fingerprint, *listing, package.get(), layout);
    return difference && *difference == Difference::records ? PackageChange::changed : PackageChange::same;
}

void hand_over(const PackagePlace& before, const PackagePlace& now, const PackageLayout& layout)
{
    for (const Blob& blob : before.tree->living()) {
        const BlobSource source = blob.source();
        const auto* file = std::get_if<StoredFile>(&source);
        if (file && file->tree == before.tree && still_holds(now.fingerprint.listing, *file, layout))
            blob.move_to(StoredFile{now.tree, file->folder, file->name, file->stamp});
    }
}

} // namespace quillfern::platform
