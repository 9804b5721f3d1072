#include "cli/board_answer.h"
#include "cli/board_documents.h"
#include "cli/options.h"
#include "cli/remarks.h"
#include "cli/verbs.h"

#include <memory>
#include <optional>

namespace quillfern::cli {
namespace {

struct Asked {
    std::string path;
    grants::Day today = grants::today_here();
    std::optional<std::int64_t> year; ///< absent: today's
    std::int64_t present = 0;
    Lang lang = Lang::en;
    bool json = false;
};

Answer run(const Asked& asked)
{
    const auto opened = open_board(asked.path);
    if (!opened)
        return fail(opened.error());
    print_notes(opened->notes);
    const BoardAnswer answer =
        board_answer(opened->board, asked.present, asked.year.value_or(asked.today.year), asked.lang);
    return asked.json ? as_json(answer) : as_text(answer, asked.lang);
}

} // namespace

void add_board(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add(
        "board", "Print the board's members, quorum and motions with their results", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_year(verb, asked->year);
    add_present(verb, asked->present);
    add_today(verb, asked->today);
    add_lang(verb, asked->lang);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
