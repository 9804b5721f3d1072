#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text in the cells of a terminal, for columns that line up in any script.
namespace quillfern::platform {

/// How many cells the text takes: two for a wide character (UAX #11), none for a mark that joins the one before.
std::size_t display_width(std::string_view utf8);

/// The text on one line: line breaks, tabs and other control characters, which would move the cursor or give the
/// terminal orders, become blanks.
std::string on_one_line(std::string_view utf8);

} // namespace quillfern::platform
