#pragma once

#include <string>
#include <string_view>

namespace quillfern::platform {

/// The text as a search compares it: capitals and small letters, accented and plain ones, full-width and ordinary forms
/// are the same, so that "jose" finds "José". Only for comparing with other folded texts; not for showing.
std::string search_fold(std::string_view utf8);

} // namespace quillfern::platform
