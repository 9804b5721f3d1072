#pragma once

#include "platform/blob.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern::platform {

/// The names inside one kind of package. A package is a folder that people see as one document.
struct PackageLayout {
    std::string mainFile; ///< the text that holds the records; a folder without it is no package
    std::string attachmentsFolder = {}; ///< empty: this kind has none
    std::string logoFile = {}; ///< empty: this kind has none
    std::string readMeFile = {}; ///< written for people, never read; empty: this kind has none

    /// A main file beyond this is refused: ten thousand grants are 50 MB, and decoding takes several times the size in
    /// memory. (256 MiB)
    std::int64_t mainFileLimit = std::int64_t{256} * 1024 * 1024;
};

/// What one package holds, on its way from or to the disk.
struct PackageContents {
    std::string mainText;
    std::map<std::string, Blob, std::less<>> attachments; ///< by file name
    std::optional<Blob> logo;
    std::string readMe = {};
};

} // namespace quillfern::platform
