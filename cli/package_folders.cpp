#include "cli/package_folders.h"

#include "board/board_file.h"
#include "platform/resolve.h"

#include <system_error>

namespace quillfern::cli {
namespace {

bool holds_file(const std::filesystem::path& folder, const std::string& name)
{
    std::error_code unreadable;
    return std::filesystem::is_regular_file(folder / name, unreadable);
}

bool is_document(const std::filesystem::path& folder)
{
    return holds_organization(folder) || holds_board(folder);
}

} // namespace

bool holds_organization(const std::filesystem::path& folder)
{
    return holds_file(folder, "Quillfern.json");
}

bool holds_board(const std::filesystem::path& folder)
{
    return holds_file(folder, board::board_package_layout().mainFile);
}

bool is_inside_document(const std::string& path)
{
    const std::filesystem::path folder = std::filesystem::path(platform::resolve_document(path)).parent_path();
    return is_document(folder) || (folder.filename() == "Attachments" && is_document(folder.parent_path()));
}

} // namespace quillfern::cli
