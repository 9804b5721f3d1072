#include "cli/documents.h"
#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/verbs.h"
#include "grants/grant_exporter.h"

#include <memory>

namespace quillfern::cli {

namespace {

struct Asked {
    std::string path;
    std::string out;
    bool force = false;
    Lang lang = Lang::en;
};

Answer run(const Asked& asked)
{
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const std::string sheet = grants::GrantExporter::csv(opened->package.file, asked.lang);
    if (const auto written = write_output_file(asked.out, sheet, asked.force); !written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_export_csv(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add("csv", "Write the grants as a spreadsheet", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the spreadsheet goes");
    add_lang(verb, asked->lang);
}

} // namespace quillfern::cli
