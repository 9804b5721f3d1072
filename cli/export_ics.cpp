#include "cli/documents.h"
#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/verbs.h"
#include "grants/ics_export.h"
#include "platform/clock.h"

#include <memory>

namespace quillfern::cli {

using namespace grants;

namespace {

struct Asked {
    std::string path;
    std::string out;
    bool force = false;
    ICSExport::Options options;
    Instant exported_at = platform::now();
    Lang lang = Lang::en;
};

Answer run(const Asked& asked)
{
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const GrantFile& file = opened->package.file;
    const std::string calendar = ICSExport::text(ICSExport::chosen(agenda(file), asked.options), asked.options,
        {file.org.name, file.org.currencyCode, asked.lang, asked.exported_at});
    if (const auto written = write_output_file(asked.out, calendar, asked.force); !written)
        return fail(written.error());
    return std::string();
}

} // namespace

void add_export_ics(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add("ics", "Write the open dates as a calendar file", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_out(verb, asked->out, asked->force, "Where the calendar file goes");
    add_flag(verb, "--drafts", asked->options.includeDraftDates, "With the days on which to start report drafts");
    add_flag(verb, "--payments", asked->options.includePayments, "With expected payments");
    add_flag(verb, "--decisions", asked->options.includeDecisions, "With expected decisions");
    add_alert_days(verb, asked->options.alertDays);
    add_dtstamp(verb, asked->exported_at);
    add_lang(verb, asked->lang);
}

} // namespace quillfern::cli
