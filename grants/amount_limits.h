#pragma once

#include "grants/grant_file.h"

#include <string_view>

namespace quillfern::grants {

constexpr std::string_view amounts_too_large = "The amounts are too large to add up.";

/// Whether every figure that is derived from the file's amounts stays within Money. An overflow stops the program, so
/// a file from elsewhere is asked before its figures are derived. The bound is some 920 trillion units of currency for
/// all amounts of the file together; each amount by itself is in range, since it was read.
bool figures_fit(const GrantFile& file);

} // namespace quillfern::grants
