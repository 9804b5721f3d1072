#include "platform/display_width.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace quillfern::platform {

/// Calls `take(code_point, first_byte, end_byte)` for each code point; a byte that is no UTF-8 counts as U+FFFD.
template <class Take>
static void for_each_code_point(std::string_view utf8, Take&& take)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(utf8.data());
    const auto size = static_cast<std::int64_t>(utf8.size());
    for (std::int64_t at = 0; at < size;) {
        const std::int64_t first = at;
        UChar32 code_point = 0;
        U8_NEXT_OR_FFFD(bytes, at, size, code_point);
        take(code_point, static_cast<std::size_t>(first), static_cast<std::size_t>(at));
    }
}

static std::size_t cells_of(UChar32 code_point)
{
    constexpr std::uint32_t joining = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK | U_GC_CC_MASK;
    if (U_GET_GC_MASK(code_point) & joining)
        return 0;
    const int width = u_getIntPropertyValue(code_point, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

std::size_t display_width(std::string_view utf8)
{
    std::size_t width = 0;
    for_each_code_point(utf8, [&](UChar32 code_point, std::size_t, std::size_t) { width += cells_of(code_point); });
    return width;
}

std::string on_one_line(std::string_view utf8)
{
    std::string line;
    line.reserve(utf8.size());
    for_each_code_point(utf8, [&](UChar32 code_point, std::size_t first, std::size_t end) {
        constexpr std::uint32_t breaking = U_GC_CC_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
        if (U_GET_GC_MASK(code_point) & breaking)
            line += ' ';
        else
            line += utf8.substr(first, end - first);
    });
    return line;
}

} // namespace quillfern::platform
