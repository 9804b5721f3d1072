#include "platform/hidden_names.h"

#include "platform/random_uuid.h"
#include "platform/sha256.h"

#include <algorithm>

namespace quillfern::platform {
namespace {

constexpr std::size_t hex_digits = 8;

std::string stem(std::string_view document)
{
    return shortened(document, longest_file_name - 2 - 1 - hex_digits - 1);
}

} // namespace

std::string shortened(std::string_view name, std::size_t longest)
{
    if (name.size() <= longest)
        return std::string(name);
    std::size_t end = longest - hex_digits - 1;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80)
        --end;
    return std::string(name.substr(0, end)) + '-' + hex(sha256(name)).substr(0, hex_digits);
}

std::string fresh_sibling_name(std::string_view document)
{
    return ".~" + stem(document) + '-' + random_uuid().lower_text().substr(0, hex_digits) + '~';
}

bool is_sibling_of(std::string_view entry, std::string_view document)
{
    const std::string start = ".~" + stem(document) + '-';
    if (entry.size() != start.size() + hex_digits + 1 || !entry.starts_with(start) || !entry.ends_with('~'))
        return false;
    const std::string_view digits = entry.substr(start.size(), hex_digits);
    return digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

std::string backup_name(std::string_view document)
{
    return ".~" + stem(document) + ".bak~";
}

SplitPath split_path(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string_view::npos)
        return {".", std::string(path)};
    return {std::string(path.substr(0, std::max<std::size_t>(slash, 1))), std::string(path.substr(slash + 1))};
}

std::string join_path(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    if (!path.ends_with('/'))
        path += '/';
    return path.append(name);
}

bool is_file_name(std::string_view name)
{
    return !name.empty() && name != "." && name != ".." && name.find_first_of(std::string_view("/\0", 2)) == name.npos;
}

} // namespace quillfern::platform
