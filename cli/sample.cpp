#include "grants/sample_organization.h"

#include "cli/documents.h"
#include "cli/options.h"
#include "cli/verbs.h"

#include <memory>

namespace quillfern::cli {

namespace {

struct Asked {
    std::string out;
    bool force = false;
    grants::Day today = grants::today_here();
    Lang lang = Lang::en;
};

Answer run(const Asked& asked)
{
    const auto written =
        write_organization(grants::sample_organization(asked.today, asked.lang), asked.out, asked.force);
    if (!written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_sample(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("sample", "Write a sample organization, dated around today", [asked] { return run(*asked); });
    add_out(verb, asked->out, asked->force, "Where the package goes");
    add_today(verb, asked->today);
    add_lang(verb, asked->lang);
}

} // namespace quillfern::cli
