#include "cli/board_documents.h"
#include "cli/documents.h"
#include "cli/options.h"
#include "cli/remarks.h"
#include "cli/verbs.h"

#include <filesystem>
#include <memory>
#include <system_error>

namespace quillfern::cli {

namespace {

struct Asked {
    std::string path;
    std::string out;
    bool force = false;
};

bool is_the_same(const std::string& path, const std::string& other)
{
    std::error_code missing;
    return std::filesystem::equivalent(path, other, missing);
}

/// `open` gives the records with the notes of their reading; `write` puts the records elsewhere.
template <class Open, class Write>
Answer copy(const Asked& asked, Open open, Write write)
{
    const auto opened = open(asked.path);
    if (!opened)
        return fail(opened.error());
    if (!opened->notes.empty() && is_the_same(asked.path, asked.out))
        return fail(loss_refusal(opened->notes));
    if (const auto written = write(*opened, asked.out, asked.force); !written)
        return fail(written.error());
    print_notes(opened->notes);
    return std::string();
}

Answer copy_package(const Asked& asked)
{
    return copy(
        asked, [](const std::string& path) { return open_organization(path); },
        [](const grants::OpenedPackage& opened, const std::string& out, bool force) {
            return write_organization(opened.package, out, force);
        });
}

Answer copy_board(const Asked& asked)
{
    return copy(asked, open_board, [](const board::BoardRead& opened, const std::string& out, bool force) {
        return write_board(opened.board, out, force);
    });
}

} // namespace

void add_export_package(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("package", "Write a copy in the current format", [asked] { return copy_package(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the copy goes");
}

void add_export_board(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("board", "Write the board alone as a board package", [asked] { return copy_board(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the board package goes");
}

} // namespace quillfern::cli
