#include "app/export/export_choices.h"

#include "app/document/file_names.h"
#include "app/pages/count_words.h"
#include "grants/agenda.h"
#include "grants/grant_exporter.h"

#include <algorithm>
#include <string_view>

namespace quillfern::app {
namespace {

using grants::AgendaItem;
using grants::AgendaKind;
using grants::GrantFile;
using grants::ICSExport;

constexpr Text grants_name = {"grants", "subvenciones"};
constexpr Text dates_name = {"dates", "fechas"};

ICSExport::Options options_of(const ExportChoices& choices)
{
    return {choices.draftDates, choices.payments, choices.decisions, choices.alert ? choices.alertDays : 0};
}

std::string count_of(const std::vector<AgendaItem>& items, AgendaKind kind)
{
    return std::to_string(
        std::count_if(items.begin(), items.end(), [kind](const AgendaItem& item) { return item.kind == kind; }));
}

std::string name_of(const GrantFile& file)
{
    return file.org.name.empty() ? "this organization" : file.org.name;
}

} // namespace

std::string alert_words(std::int64_t days)
{
    return (days == 1 ? "The day before" : std::to_string(days) + " days before") + ", 9:00 AM";
}

ExportWords export_words(const GrantFile& file, const ExportChoices& choices)
{
    ExportWords words;
    if (choices.kind == ExportKind::grantsCSV) {
        words.result = count_words(file.grants.size(), "grant") + " will be saved, one row each.";
        words.about = "All grants of " + name_of(file);
        words.any = true; // a header row alone is a template
        return words;
    }
    const std::vector<AgendaItem> items = open_agenda(file);
    const std::size_t count = ICSExport::chosen(items, options_of(choices)).size();
    words.draftDates = count_of(items, AgendaKind::reportDraft);
    words.payments = count_of(items, AgendaKind::payment);
    words.decisions = count_of(items, AgendaKind::decision);
    words.result = count == 0 ? "There are no open dates to save." : count_words(count, "date") + " will be saved.";
    words.about = "Open dates of " + name_of(file);
    words.any = count > 0;
    return words;
}

std::string export_text(const GrantFile& file, const ExportChoices& choices, Instant now)
{
    if (choices.kind == ExportKind::grantsCSV)
        return grants::GrantExporter::csv(file, choices.lang);
    const ICSExport::Options options = options_of(choices);
    return ICSExport::text(ICSExport::chosen(open_agenda(file), options), options,
        {file.org.name, file.org.currencyCode, choices.lang, now});
}

std::string export_file_name(const GrantFile& file, const ExportChoices& choices)
{
    std::string name = file_name_for(file.org.name);
    const Text& what = choices.kind == ExportKind::grantsCSV ? grants_name : dates_name;
    const std::string_view word = what(choices.lang);
    name += name.empty() ? std::string(word) : ' ' + std::string(word);
    return name + '.' + export_suffix(choices.kind);
}

std::string export_suffix(ExportKind kind)
{
    return kind == ExportKind::grantsCSV ? "csv" : "ics";
}

} // namespace quillfern::app
