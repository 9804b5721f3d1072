#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/verbs.h"
#include "grants/grant_exporter.h"

#include <memory>

namespace quillfern::cli {

namespace {

struct Asked {
    std::string out;
    bool force = false;
    Lang lang = Lang::en;
};

Answer run(const Asked& asked)
{
    const std::string sheet = grants::GrantExporter::template_(asked.lang);
    if (const auto written = write_output_file(asked.out, sheet, asked.force); !written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_export_template(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("template", "Write a spreadsheet to fill in and import", [asked] { return run(*asked); });
    add_out(verb, asked->out, asked->force, "Where the template goes");
    add_lang(verb, asked->lang);
}

} // namespace quillfern::cli
