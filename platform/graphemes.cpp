#include "platform/graphemes.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace quillfern::platform {

namespace {

int cluster_break(UChar32 code_point)
{
    return code_point < 0 ? U_GCB_OTHER : u_getIntPropertyValue(code_point, UCHAR_GRAPHEME_CLUSTER_BREAK);
}

// ICU's macros index with 32 bits, and a text may be longer; no code point is longer than four bytes.
constexpr std::size_t longest_code_point = 4;

} // namespace

bool extends_previous(std::string_view utf8, std::size_t position)
{
    const std::string_view near = utf8.substr(position, longest_code_point);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(near.data());
    std::int32_t at = 0;
    UChar32 code_point = 0;
    U8_NEXT(bytes, at, static_cast<std::int32_t>(near.size()), code_point);
    const int kind = cluster_break(code_point);
    return kind == U_GCB_EXTEND || kind == U_GCB_SPACING_MARK || kind == U_GCB_ZWJ;
}

bool prepends_next(std::string_view utf8, std::size_t position)
{
    const std::size_t length = std::min(position, longest_code_point);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(utf8.data() + (position - length));
    auto at = static_cast<std::int32_t>(length);
    UChar32 code_point = 0;
    U8_PREV(bytes, 0, at, code_point);
    return cluster_break(code_point) == U_GCB_PREPEND;
}

} // namespace quillfern::platform
