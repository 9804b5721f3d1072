#include "cli/documents.h"
#include "cli/json.h"
#include "cli/options.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "grants/labels.h"
#include "grants/report_scheduler.h"
#include "platform/clock.h"

#include <algorithm>
#include <memory>
#include <optional>

/// Printed by this verb only; no file holds an outcome.
template <>
inline constexpr auto quillfern::fields<quillfern::grants::Outcome> = quillfern::field_list(
    quillfern::required("added", &quillfern::grants::Outcome::added),
    quillfern::required("kept", &quillfern::grants::Outcome::kept),
    quillfern::required("removed", &quillfern::grants::Outcome::removed));

namespace quillfern::cli {

using namespace grants;

namespace {

struct Asked {
    std::string path;
    Uuid grant;
    Lang lang = Lang::en;
    bool regenerate = false;
    bool save = false;
    bool json = false;
};

struct Printed {
    std::vector<ReportPeriod> reports;
    std::optional<Outcome> outcome; ///< absent when nothing was regenerated
};

constexpr Text no_reports{"This grant owes no report.", "Esta subvención no debe ningún informe."};
constexpr Text added_word{"Added", "Agregados"};
constexpr Text kept_word{"kept", "conservados"};
constexpr Text removed_word{"removed", "quitados"};

std::string as_json(const Printed& printed)
{
    platform::JsonWriter json;
    json.begin_object();
    if (printed.outcome) {
        json.key("outcome");
        write(json, *printed.outcome);
    }
    json.key("reports");
    write(json, printed.reports);
    json.end_object();
    return std::move(json).finish();
}

std::string period_text(const ReportPeriod& report, Lang lang)
{
    if (!report.periodStart || !report.periodEnd)
        return "";
    return display_text(*report.periodStart, lang) + " – " + display_text(*report.periodEnd, lang);
}

std::string as_text(const Printed& printed, const Grant& grant, Lang lang)
{
    TextTable table(std::vector<TextTable::Alignment>(4, TextTable::left));
    table.heading(grant.title);
    for (const ReportPeriod& report : printed.reports)
        table.row({display_text(report.due, lang), report.title, period_text(report, lang),
            std::string(label(report.status, lang))});
    std::string text = table.text();
    if (printed.reports.empty())
        text += "  " + std::string(no_reports(lang)) + '\n';
    if (const auto& outcome = printed.outcome) {
        text += '\n' + std::string(added_word(lang)) + ' ' + std::to_string(outcome->added) + ", "
            + std::string(kept_word(lang)) + ' ' + std::to_string(outcome->kept) + ", "
            + std::string(removed_word(lang)) + ' ' + std::to_string(outcome->removed) + ".\n";
    }
    return text;
}

Printed printed_reports(const Grant& grant, const FileSettings& settings, const Asked& asked)
{
    if (!asked.regenerate)
        return {grant.reports, std::nullopt};
    Regeneration planned = regenerate_reports(grant, settings, asked.lang);
    return {std::move(planned.reports), planned.outcome};
}

/// `lock` is there when the new plan is to be saved.
Answer run_locked(const Asked& asked, const platform::DocumentLock* lock)
{
    auto opened = open_organization(asked.path, lock);
    if (!opened)
        return fail(opened.error());
    GrantFile& file = opened->package.file;
    const auto grant =
        std::find_if(file.grants.begin(), file.grants.end(), [&](const Grant& each) { return each.id == asked.grant; });
    if (grant == file.grants.end())
        return fail("The file has no grant with the id " + asked.grant.text() + ".");

    const Printed printed = printed_reports(*grant, file.settings, asked);
    if (lock) {
        *grant = grant->with([&](Grant& changed) {
            changed.reports = printed.reports;
            changed.modified = platform::now();
        });
        if (const auto saved = save_organization(*opened, *lock); !saved)
            return fail(saved.error());
    }
    return asked.json ? as_json(printed) : as_text(printed, *grant, asked.lang);
}

Answer run(const Asked& asked)
{
    if (!asked.save)
        return run_locked(asked, nullptr);
    const auto lock = lock_document(asked.path);
    if (!lock)
        return fail(lock.error());
    return run_locked(asked, &*lock);
}

} // namespace

void add_reports(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add("reports", "Print the reports that a grant owes", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_required_uuid(verb, "--grant", asked->grant, "The grant");
    add_flag(verb, "--regenerate", asked->regenerate, "Plan them anew from the award's dates and its report plan");
    add_flag_of(verb, "--save", asked->save, "--regenerate", "Write the new plan into the package");
    add_lang(verb, asked->lang);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
