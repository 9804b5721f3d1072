#include "cli/board_documents.h"

#include "board/board_file.h"
#include "cli/documents.h"
#include "cli/package_folders.h"
#include "cli/save_words.h"
#include "grants/day.h"
#include "platform/clock.h"
#include "platform/random_uuid.h"

#include <filesystem>

namespace quillfern::cli {
namespace {

/// By what is in the folder; its name decides only when it holds both kinds of records, or none.
bool is_board_package(const std::filesystem::path& path)
{
    if (holds_board(path) != holds_organization(path))
        return holds_board(path);
    const std::filesystem::path named = path.has_filename() ? path : path.parent_path();
    return named.extension() == ".marrowind";
}

} // namespace

Result<board::BoardRead, std::string> open_board(const std::string& path)
{
    if (is_board_package(path)) {
        auto read = board::read_board_file(path, {platform::random_uuid, platform::now()});
        if (!read)
            return fail(path + ": " + message(read.error(), Lang::en));
        return std::move(read).value();
    }
    auto opened = open_organization(path);
    if (!opened)
        return fail(opened.error());
    std::erase_if(opened->notes, [](const std::string& note) { return !note.starts_with("board"); });
    return board::BoardRead{opened->package.file.board, std::move(opened->notes)};
}

Result<Done, std::string> write_board(const board::Board& board, const std::string& path, bool force)
{
    const auto lock = lock_document(path);
    if (!lock)
        return fail(lock.error());
    const auto existing = force ? platform::Existing::replacePackage : platform::Existing::refuse;
    const auto written = board::write_board_file(board, path, existing, *lock, grants::today_here().text());
    if (!written)
        return fail(save_refusal(written.error(), path));
    return Done{};
}

} // namespace quillfern::cli
