#pragma once

#include <string>
#include <string_view>

namespace quillfern::app {

/// What to call the file of something with this title, without an ending: names on the disks of other systems may not
/// hold certain characters, and files are meant to be handed on. Long titles are cut; empty when nothing is left.
std::string file_name_for(std::string_view title);

/// Why a name that the user types cannot be a file's, as one sentence; empty when it can.
std::string file_name_problem(std::string_view name);

} // namespace quillfern::app
