#include "platform/package_watch.h"

#include "platform/file_bytes.h"

namespace quillfern::platform {

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

} // namespace quillfern::platform
