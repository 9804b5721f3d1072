#include "cli/board_documents.h"
#include "cli/options.h"
#include "cli/verbs.h"

#include <memory>

namespace quillfern::cli {
namespace {

struct Asked {
    std::string path;
    std::string out;
    bool force = false;
};

Answer run(const Asked& asked)
{
    const auto board = open_board(asked.path);
    if (!board)
        return fail(board.error());
    if (const auto written = write_board(*board, asked.out, asked.force); !written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_export_board(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add("board", "Write the board alone as a board package", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the board package goes");
}

} // namespace quillfern::cli
