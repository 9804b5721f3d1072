#include "grants/grant_exporter.h"

#include "grants/csv_writer.h"
#include "grants/labels.h"
#include "grants/template_samples.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace quillfern::grants {

namespace {

/// Funder names by id; of two funders with one id, the first gives the name.
using FunderNames = std::unordered_map<Uuid, std::string_view>;

FunderNames funder_names(const GrantFile& file)
{
    FunderNames names;
    names.reserve(file.funders.size());
    for (const Funder& funder : file.funders)
        names.try_emplace(funder.id, funder.name);
    return names;
}

std::string_view funder_name(const Grant& grant, const FunderNames& names)
{
    if (!grant.funderID)
        return {};
    const auto found = names.find(*grant.funderID);
    return found == names.end() ? std::string_view() : found->second;
}

template <class T>
std::string text_of(const std::optional<T>& value)
{
    return value ? value->text() : std::string();
}

std::string ask_text(const Grant& grant)
{
    return grant.ask == Money() ? std::string() : text_of(grant.ask);
}

std::string probability_text(const Grant& grant)
{
    return grant.probability ? std::to_string(*grant.probability) + "%" : std::string();
}

/// Calls use(...) with one cell: with its text, or with the day that it holds.
template <class Use>
void with_cell(ImportField field, const Grant& grant, std::string_view funder, Lang lang, Use&& use)
{
    switch (field) {
    case ImportField::title:
        return use(grant.title);
    case ImportField::funder:
        return use(funder);
    case ImportField::stage:
        return use(label(grant.stage, lang));
    case ImportField::ask:
        return use(ask_text(grant));
    case ImportField::awarded:
        return use(text_of(grant.awarded));
    case ImportField::probability:
        return use(probability_text(grant));
    case ImportField::loiDue:
        return use(grant.loiDue);
    case ImportField::applicationDue:
        return use(grant.applicationDue);
    case ImportField::submittedOn:
        return use(grant.submittedOn);
    case ImportField::decisionExpected:
        return use(grant.decisionExpected);
    case ImportField::decidedOn:
        return use(grant.decidedOn);
    case ImportField::awardStart:
        return use(grant.awardStart);
    case ImportField::awardEnd:
        return use(grant.awardEnd);
    case ImportField::reportDue:
        return use(next_report_due(grant));
    case ImportField::program:
        return use(grant.program);
    case ImportField::owner:
        return use(grant.owner);
    case ImportField::notes:
        return use(grant.notes);
    }
}

struct AddToSheet {
    CSVBuilder& sheet;

    void operator()(std::string_view text) const { sheet.add_cell(text); }
    void operator()(const std::optional<Day>& day) const { sheet.add_plain_cell(text_of(day)); }
};

struct AddToRow {
    CSVRow& row;

    void operator()(std::string_view text) const { row.emplace_back(text); }
    void operator()(const std::optional<Day>& day) const { row.push_back(text_of(day)); }
};

} // namespace

std::string GrantExporter::csv(const GrantFile& file, Lang lang)
{
    constexpr std::size_t usual_row_bytes = 512;
    const FunderNames names = funder_names(file);
    CSVBuilder sheet;
    sheet.reserve((1 + file.grants.size()) * usual_row_bytes);
    for (const ImportField field : fields)
        sheet.add_cell(title(field, lang));
    sheet.end_row();
    for (const Grant& grant : file.grants) {
        const std::string_view funder = funder_name(grant, names);
        for (const ImportField field : fields)
            with_cell(field, grant, funder, lang, AddToSheet{sheet});
        sheet.end_row();
    }
    return std::move(sheet).finish();
}

CSVRow GrantExporter::row(const Grant& grant, const GrantFile& file, Lang lang)
{
    const auto funder = std::find_if(file.funders.begin(), file.funders.end(),
        [&](const Funder& candidate) { return grant.funderID == candidate.id; });
    const std::string_view name = funder == file.funders.end() ? std::string_view() : (*funder)->name;
    CSVRow row;
    for (const ImportField field : fields)
        with_cell(field, grant, name, lang, AddToRow{row});
    return row;
}

std::string GrantExporter::template_(Lang lang)
{
    return csv(template_samples(lang), lang);
}

std::optional<Day> next_report_due(const Grant& grant)
{
    std::optional<Day> earliest;
    for (const ReportPeriod& report : grant.reports)
        if (report.status != ReportStatus::submitted && (!earliest || report.due < *earliest))
            earliest = report.due;
    return earliest;
}

} // namespace quillfern::grants
