#pragma once

#include <string>
#include <string_view>

namespace quillfern::platform {

/// UTF-8 in lower case by Unicode's own rules, the same in every locale.
std::string lower_case(std::string_view text);

} // namespace quillfern::platform
