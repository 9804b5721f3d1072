#include "cli/board_documents.h"

#include "board/board_file.h"
#include "cli/documents.h"
#include "grants/day.h"
#include "grants/package_messages.h"
#include "platform/clock.h"
#include "platform/random_uuid.h"

#include <filesystem>

namespace quillfern::cli {
namespace {

/// By what is in the folder; its name decides only when it holds both kinds of records, or none.
bool is_board_package(const std::filesystem::path& path)
{
    std::error_code ignored;
    const bool has_board = std::filesystem::is_regular_file(path / board::board_package_layout().mainFile, ignored);
    const bool has_organization = std::filesystem::is_regular_file(path / "Quillfern.json", ignored);
    if (has_board != has_organization)
        return has_board;
    const std::filesystem::path named = path.has_filename() ? path : path.parent_path();
    return named.extension() == ".marrowind";
}

} // namespace

Result<board::Board, std::string> open_board(const std::string& path)
{
    if (is_board_package(path)) {
        auto read = board::read_board_file(path, {platform::random_uuid, platform::now()});
        if (!read)
            return fail(path + ": " + message(read.error(), Lang::en));
        return std::move(read->board);
    }
    const auto opened = open_organization(path);
    if (!opened)
        return fail(opened.error());
    return *opened->package.file.board;
}

Result<Done, std::string> write_board(const board::Board& board, const std::string& path, bool force)
{
    const auto lock = lock_document(path);
    if (!lock)
        return fail(lock.error());
    const auto existing = force ? platform::Existing::replacePackage : platform::Existing::refuse;
    const auto written = board::write_board_file(board, path, existing, *lock, grants::today_here().text());
    if (!written)
        return fail(grants::save_error_text(written.error()));
    return Done{};
}

} // namespace quillfern::cli
