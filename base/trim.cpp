#include "base/trim.h"

#include <array>

namespace quillfern {
namespace {

constexpr std::string_view ascii_white_space = " \t\n\v\f\r";

/// U+0085, U+00A0, U+1680, U+2000 to U+200A, U+2028, U+2029, U+202F, U+205F and U+3000.
constexpr std::array<std::string_view, 19> wide_white_space = {
    "\xC2\x85",
    "\xC2\xA0",
    "\xE1\x9A\x80",
    "\xE2\x80\x80",
    "\xE2\x80\x81",
    "\xE2\x80\x82",
    "\xE2\x80\x83",
    "\xE2\x80\x84",
    "\xE2\x80\x85",
    "\xE2\x80\x86",
    "\xE2\x80\x87",
    "\xE2\x80\x88",
    "\xE2\x80\x89",
    "\xE2\x80\x8A",
    "\xE2\x80\xA8",
    "\xE2\x80\xA9",
    "\xE2\x80\xAF",
    "\xE2\x81\x9F",
    "\xE3\x80\x80",
};

std::size_t space_at_start(std::string_view text)
{
    if (ascii_white_space.find(text.front()) != std::string_view::npos)
        return 1;
    for (const std::string_view space : wide_white_space)
        if (text.starts_with(space))
            return space.size();
    return 0;
}

std::size_t space_at_end(std::string_view text)
{
    if (ascii_white_space.find(text.back()) != std::string_view::npos)
        return 1;
    for (const std::string_view space : wide_white_space)
        if (text.ends_with(space))
            return space.size();
    return 0;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t size = space_at_start(text);
        if (size == 0)
            break;
        text.remove_prefix(size);
    }
    while (!text.empty()) {
        const std::size_t size = space_at_end(text);
        if (size == 0)
            break;
        text.remove_suffix(size);
    }
    return text;
}

} // namespace quillfern
