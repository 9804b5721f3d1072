#include "base/fields.h"
#include "cli/documents.h"
#include "cli/json.h"
#include "cli/options.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "grants/amount_limits.h"
#include "grants/carriage_returns.h"
#include "grants/repeated_ids.h"

#include <memory>
#include <set>
#include <vector>

namespace quillfern::cli {

/// What a package holds, and what is wrong with it.
struct Findings {
    std::string name;
    std::int64_t formatVersion = 0; ///< as stored
    std::int64_t funders = 0;
    std::int64_t grants = 0;
    std::int64_t people = 0;
    std::int64_t members = 0;
    std::int64_t meetings = 0;
    std::int64_t motions = 0;
    std::int64_t actions = 0;
    std::int64_t attachments = 0; ///< records, whether their files are there or not
    std::vector<std::string> missingAttachments; ///< stored names without a file, sorted, each once
    std::vector<std::string> unreferencedAttachments; ///< files that no record names, sorted
    std::vector<std::string> warnings;
};

} // namespace quillfern::cli

template <>
inline constexpr auto quillfern::fields<quillfern::cli::Findings> = quillfern::field_list(
    quillfern::required("name", &quillfern::cli::Findings::name),
    quillfern::required("formatVersion", &quillfern::cli::Findings::formatVersion),
    quillfern::required("funders", &quillfern::cli::Findings::funders),
    quillfern::required("grants", &quillfern::cli::Findings::grants),
    quillfern::required("people", &quillfern::cli::Findings::people),
    quillfern::required("members", &quillfern::cli::Findings::members),
    quillfern::required("meetings", &quillfern::cli::Findings::meetings),
    quillfern::required("motions", &quillfern::cli::Findings::motions),
    quillfern::required("actions", &quillfern::cli::Findings::actions),
    quillfern::required("attachments", &quillfern::cli::Findings::attachments),
    quillfern::required("missingAttachments", &quillfern::cli::Findings::missingAttachments),
    quillfern::required("unreferencedAttachments", &quillfern::cli::Findings::unreferencedAttachments),
    quillfern::required("warnings", &quillfern::cli::Findings::warnings));

namespace quillfern::cli {

using namespace grants;

namespace {

struct Asked {
    std::string path;
    bool json = false;
};

template <class List>
std::int64_t count(const List& list)
{
    return static_cast<std::int64_t>(list.size());
}

void count_records(const GrantFile& file, Findings& found)
{
    found.name = file.org.name;
    found.formatVersion = file.formatVersion;
    found.funders = count(file.funders);
    found.grants = count(file.grants);
    found.people = count(file.people);
    found.members = count(file.board->members);
    found.meetings = count(file.board->meetings);
    found.actions = count(file.board->actions);
    for (const board::Meeting& meeting : file.board->meetings)
        found.motions += count(meeting.motions);
}

void compare_attachments(const OrgPackage& package, Findings& found)
{
    std::set<std::string> missing;
    std::set<std::string> unreferenced;
    for (const auto& [stored_name, bytes] : *package.attachments)
        unreferenced.insert(stored_name);
    for (const Grant& grant : package.file.grants) {
        found.attachments += count(grant.attachments);
        for (const Attachment& attachment : grant.attachments) {
            unreferenced.erase(attachment.storedName);
            if (!package.attachments->contains(attachment.storedName))
                missing.insert(attachment.storedName);
        }
    }
    found.missingAttachments.assign(missing.begin(), missing.end());
    found.unreferencedAttachments.assign(unreferenced.begin(), unreferenced.end());
}

Findings examine(const OpenedPackage& opened)
{
    Findings found;
    count_records(opened.package.file, found);
    compare_attachments(opened.package, found);
    const GrantFile& file = opened.package.file;
    for (const ReadNotes& notes : {opened.notes, texts_with_carriage_returns(file), repeated_ids(file)})
        found.warnings.insert(found.warnings.end(), notes.begin(), notes.end());
    if (!figures_fit(file))
        found.warnings.emplace_back(amounts_too_large);
    return found;
}

void add_list(TextTable& table, std::string_view heading, const std::vector<std::string>& list)
{
    if (!list.empty())
        table.heading(heading);
    for (const std::string& each : list)
        table.line(each);
}

std::string as_text(const Findings& found, const std::vector<std::string>& unknown_entries)
{
    TextTable table({TextTable::left, TextTable::right});
    table.heading(found.name.empty() ? "An organization without a name" : found.name);
    const std::pair<std::string_view, std::int64_t> counts[] = {{"Format version", found.formatVersion},
        {"Funders", found.funders}, {"Grants", found.grants}, {"People", found.people},
        {"Board members", found.members}, {"Meetings", found.meetings}, {"Motions", found.motions},
        {"Action items", found.actions}, {"Attachments", found.attachments}};
    for (const auto& [name, number] : counts)
        table.row({std::string(name), std::to_string(number)});
    add_list(table, "Missing attachments", found.missingAttachments);
    add_list(table, "Files that no record names", found.unreferencedAttachments);
    add_list(table, "Entries that do not belong to the package", unknown_entries);
    add_list(table, "Warnings", found.warnings);
    return table.text();
}

Answer run(const Asked& asked)
{
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const Findings found = examine(*opened);
    return asked.json ? json_text(found) : as_text(found, opened->unknownEntries);
}

} // namespace

void add_check(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("check", "Say what the package holds and what is wrong with it", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
