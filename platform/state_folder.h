#pragma once

#include <string>

namespace quillfern::platform {

/// Where the program keeps what it must not lose and what is no document: $XDG_STATE_HOME/quillfern, by default in
/// ~/.local/state (XDG base directories). It may not exist yet.
std::string state_folder();

/// Makes the folder and those above it that are missing, for this user only. 0 or an errno.
int make_private_folder(const std::string& path);

} // namespace quillfern::platform
