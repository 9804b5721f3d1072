#pragma once

#include <string>

namespace quillfern::platform {

/// The document's real, absolute path. The user's own shortcut (a link to a package) is followed here, once; when
/// nothing stands there yet, the folder alone is resolved. What cannot be resolved comes back as it was given.
std::string resolve_document(const std::string& path);

} // namespace quillfern::platform
