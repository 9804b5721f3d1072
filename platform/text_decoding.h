#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Bytes of other programs' files to UTF-8 text.
namespace quillfern::platform {

bool is_valid_utf8(std::string_view bytes);

/// Whether the bytes begin with a UTF-16 byte-order mark (FF FE or FE FF).
bool has_utf16_mark(std::string_view bytes);

/// The mark chooses the byte order and is dropped. What is not UTF-16 (half a surrogate pair, a last odd byte) becomes
/// U+FFFD.
std::string decode_utf16(std::string_view bytes);

/// Absent when the bytes hold one of the five that Windows-1252 leaves undefined (81, 8D, 8F, 90 and 9D): such a text
/// is of another encoding.
std::optional<std::string> decode_windows_1252(std::string_view bytes);

/// Every byte has a meaning here.
std::string decode_mac_roman(std::string_view bytes);

} // namespace quillfern::platform
