#pragma once

#include <string_view>

namespace quillfern {

/// The text without white space and line breaks at its ends (every code point with Unicode's White_Space property, so
/// that a no-break space pasted from a web page does not turn a date into no date). `text` is UTF-8.
std::string_view trimmed(std::string_view text);

} // namespace quillfern
