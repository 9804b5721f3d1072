#pragma once

#include <cstddef>
#include <string_view>

/// User-perceived characters (grapheme clusters, UAX #29), as far as a scan for ASCII punctuation needs them.
///
/// A comma with a combining mark after it is one character to the reader, and that character is no comma. Between two
/// ASCII characters there is always a boundary (CR LF apart), so a scan asks only beside a byte of 0x80 or above:
///
///     is_joined("a,\u0301b", 1)   // true: an accented comma
///     is_joined("a,b", 1)         // false, without asking the Unicode tables
namespace quillfern::platform {

/// Whether the code point that starts at `position` belongs to the cluster before it: a combining mark, a spacing mark
/// or a zero-width joiner. False for bytes that are not UTF-8.
bool extends_previous(std::string_view utf8, std::size_t position);

/// Whether the code point that ends before `position` draws the next one into its cluster (the Arabic number sign and
/// its like).
bool prepends_next(std::string_view utf8, std::size_t position);

/// Whether the ASCII character at `position` is only a part of a larger cluster. It must not be a control character:
/// those (tab, CR and LF among them) never join a mark.
inline bool is_joined(std::string_view utf8, std::size_t position)
{
    const auto beyond_ascii = [&](std::size_t at) { return (static_cast<unsigned char>(utf8[at]) & 0x80) != 0; };
    return (position + 1 < utf8.size() && beyond_ascii(position + 1) && extends_previous(utf8, position + 1))
        || (position > 0 && beyond_ascii(position - 1) && prepends_next(utf8, position));
}

} // namespace quillfern::platform
