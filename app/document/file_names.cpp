#include "app/document/file_names.h"

#include "base/trim.h"

#include <algorithm>

namespace quillfern::app {
namespace {

constexpr std::string_view forbidden = "/\\:*?\"<>|";

/// File systems take 255 bytes for a name. This leaves room for the rest of it, the ending and what a copy adds.
constexpr std::size_t longest_title = 120;
constexpr std::size_t longest_name = 200;

bool is_control(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// Cut at the end of a character.
std::string_view shortened(std::string_view text)
{
    std::size_t end = std::min(text.size(), longest_title);
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end);
}

} // namespace

std::string file_name_for(std::string_view title)
{
    std::string name(shortened(title));
    std::erase_if(name, [](char c) { return forbidden.find(c) != std::string_view::npos || is_control(c); });
    name = trimmed(name);
    name.erase(0, std::min(name.find_first_not_of('.'), name.size())); // a leading dot would hide the file
    return name;
}

std::string file_name_problem(std::string_view name)
{
    if (trimmed(name).empty())
        return "Type a name.";
    if (name.front() == '.')
        return "A name that begins with a dot hides the file.";
    if (name.find('/') != std::string_view::npos || std::any_of(name.begin(), name.end(), is_control))
        return "A name cannot hold a slash or a line break.";
    if (name.size() > longest_name)
        return "The name is too long.";
    return {};
}

} // namespace quillfern::app
