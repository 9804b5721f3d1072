#include "cli/documents.h"
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
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const auto written = write_organization(opened->package, asked.out, asked.force);
    if (!written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_export_package(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add("package", "Write a copy in the current format", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the copy goes");
}

} // namespace quillfern::cli
