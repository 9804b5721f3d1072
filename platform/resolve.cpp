#include "platform/resolve.h"

#include "platform/hidden_names.h"

#include <cstdlib>
#include <memory>
#include <optional>

namespace quillfern::platform {
namespace {

std::optional<std::string> real_path(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? std::optional<std::string>(real.get()) : std::nullopt;
}

} // namespace

std::string resolve_document(const std::string& path)
{
    if (const auto real = real_path(path))
        return *real;
    const SplitPath split = split_path(path);
    const auto folder = real_path(split.folder);
    return folder && is_file_name(split.name) ? join_path(*folder, split.name) : path;
}

} // namespace quillfern::platform
