#include "grants/grant_exporter.h"

#include "grants/csv_writer.h"
#include "grants/labels.h"
#include "grants/template_samples.h"

#include <string_view>
#include <unordered_map>

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

CSVRow cells(const Grant& grant, std::string_view funder, Lang lang)
{
    const std::optional<Day> report_due = next_report_due(grant);
    CSVRow row;
    row.reserve(all_import_fields.size());
    for (const ImportField field : all_import_fields) {
        switch (field) {
        case ImportField::title:
            row.push_back(grant.title);
            break;
        case ImportField::funder:
            row.emplace_back(funder);
            break;
        case ImportField::stage:
            row.emplace_back(label(grant.stage, lang));
            break;
        case ImportField::ask:
            row.push_back(ask_text(grant));
            break;
        case ImportField::awarded:
            row.push_back(text_of(grant.awarded));
            break;
        case ImportField::probability:
            row.push_back(probability_text(grant));
            break;
        case ImportField::loiDue:
            row.push_back(text_of(grant.loiDue));
            break;
        case ImportField::applicationDue:
            row.push_back(text_of(grant.applicationDue));
            break;
        case ImportField::submittedOn:
            row.push_back(text_of(grant.submittedOn));
            break;
        case ImportField::decisionExpected:
            row.push_back(text_of(grant.decisionExpected));
            break;
        case ImportField::decidedOn:
            row.push_back(text_of(grant.decidedOn));
            break;
        case ImportField::awardStart:
            row.push_back(text_of(grant.awardStart));
            break;
        case ImportField::awardEnd:
            row.push_back(text_of(grant.awardEnd));
            break;
        case ImportField::reportDue:
            row.push_back(text_of(report_due));
            break;
        case ImportField::program:
            row.push_back(grant.program);
            break;
        case ImportField::owner:
            row.push_back(grant.owner);
            break;
        case ImportField::notes:
            row.push_back(grant.notes);
            break;
        }
    }
    return row;
}

CSVRow header_row(Lang lang)
{
    CSVRow row;
    for (const ImportField field : all_import_fields)
        row.emplace_back(title(field, lang));
    return row;
}

} // namespace

std::string GrantExporter::csv(const GrantFile& file, Lang lang)
{
    const FunderNames names = funder_names(file);
    std::string out;
    CSVWriter::append_row(out, header_row(lang));
    for (const Grant& grant : file.grants)
        CSVWriter::append_row(out, cells(grant, funder_name(grant, names), lang));
    return out;
}

CSVRow GrantExporter::row(const Grant& grant, const GrantFile& file, Lang lang)
{
    return cells(grant, funder_name(grant, funder_names(file)), lang);
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
