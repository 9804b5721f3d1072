#pragma once

#include "platform/file_stamp.h"
#include "platform/package_layout.h"
#include "platform/sha256.h"
#include "platform/system_calls.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillfern::platform {

using StampedFiles = std::map<std::string, FileStamp, std::less<>>;

/// What stands in a package folder, looked at without opening any file.
///
/// Only regular files count as the main file, the logo and attachments, and only a real folder as the attachments'
/// folder: a link, FIFO, socket or device of that name is an unknown entry.
struct PackageListing {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::optional<FileStamp> mainFile;
    std::optional<FileStamp> logo;
    StampedFiles attachments; ///< hidden files, which the desktop leaves behind, are no attachments
    bool hasAttachmentsFolder = false;
    std::vector<std::string> unknownEntries; ///< paths inside the package, sorted
};

/// `package` is the open folder. The error is an errno.
Result<PackageListing, int> list_package(SystemCalls& calls, int package, const PackageLayout& layout);

/// A package as it was when it was opened or last saved, to notice that someone else has written it.
struct Fingerprint {
    PackageListing listing;
    Sha256Value mainHash = {};
};

enum class Difference {
    none, ///< or attachments that have arrived, which lose nothing
    records, ///< the main file, the logo or a known attachment is another one, or gone
};

/// Compares what is there now with what was. The main file is read only when its size, time or inode differ: a copy put
/// back by a synchronised folder has the same bytes and is no change.
Result<Difference, int> compare_with(
    SystemCalls& calls, const Fingerprint& before, const PackageListing& now, int package, const PackageLayout& layout);

/// Litter that desktops leave in every folder (".DS_Store", "Thumbs.db"): nobody needs to be told of it.
bool is_desktop_litter(std::string_view entry);

} // namespace quillfern::platform
