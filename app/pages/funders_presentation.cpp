#include "app/pages/funders_presentation.h"

#include "app/pages/amount_words.h"
#include "app/pages/count_words.h"
#include "app/pages/day_words.h"
#include "base/trim.h"
#include "grants/funder_history.h"
#include "grants/labels.h"
#include "grants/summaries.h"

#include <algorithm>

namespace quillfern::app {
namespace {

using grants::Funder;
using grants::FunderHistory;
using grants::Grant;
using grants::GrantFile;
using grants::Lang;

std::string grant_count(const FunderHistory& history)
{
    return count_words(static_cast<std::size_t>(history.grantCount), "grant");
}

FunderLine line_of(const FunderHistory& history, const GrantFile& file)
{
    FunderLine line;
    line.id = history.funder->id;
    line.name = history.funder->name;
    line.line = std::string(label(history.funder->kind, Lang::en)) + " · " + grant_count(history);
    line.amount = history.awardedCount > 0 ? amount_text(history.awarded, file) : no_figure;
    line.amountNote = history.awardedCount > 0 ? "awarded" : "no award yet";
    line.spoken =
        line.name + ", " + line.line + ", " + (history.awardedCount > 0 ? line.amount + " awarded" : line.amountNote);
    return line;
}

/// What is due next for the funder's grants; on one day, the first in agenda order.
std::string deadline_kind(const FunderHistory& history, const GrantFile& file)
{
    for (const grants::AgendaItem& item : open_agenda(file)) {
        if (item.day != history.nextDeadline)
            continue;
        const auto grant = std::find_if(file.grants.begin(), file.grants.end(),
            [&](const Shared<Grant>& candidate) { return candidate->id == item.grantID; });
        if (grant != file.grants.end() && (*grant)->funderID == history.funder->id)
            return std::string(label(item.kind, Lang::en));
    }
    return {};
}

std::string near_date(const grants::Day& day, const grants::Day& today)
{
    return day.year == today.year ? short_date(day) : display_text(day, Lang::en);
}

std::vector<TileWords> tiles(const FunderHistory& history, const GrantFile& file, const grants::Day& today)
{
    const auto number = [](std::int64_t count) { return std::to_string(count); };
    return {
        {"Asked", amount_text(history.asked, file), grant_count(history)},
        {"Awarded", amount_text(history.awarded, file),
            number(history.awardedCount) + " awarded, " + number(history.declinedCount) + " declined"},
        {"Last award", history.lastAward ? display_text(*history.lastAward, Lang::en) : "None yet", {}},
        {"Next deadline", history.nextDeadline ? near_date(*history.nextDeadline, today) : "None",
            history.nextDeadline ? deadline_kind(history, file) : std::string()},
    };
}

using Lines = std::vector<RecordLine>;

Lines with_text(Lines lines)
{
    std::erase_if(lines, [](const RecordLine& line) { return trimmed(line.text).empty(); });
    return lines;
}

Lines contact_lines(const Funder& funder)
{
    using enum RecordLine::Kind;
    return with_text({
        {"Contact", funder.contactName, text},
        {"Email", funder.contactEmail, email},
        {"Phone", funder.contactPhone, text},
        {"Website", funder.website, web},
        {"Address", funder.address, text},
        {"Focus", funder.focus, text},
    });
}

Lines giving_lines(const Funder& funder)
{
    using enum RecordLine::Kind;
    return with_text({
        {"Giving cycle", funder.cycle, text},
        {"Notes", funder.notes, text},
        {"Source", source_sentence(funder.source, Lang::en), hint},
    });
}

/// The number typed in, else the one of the filing.
std::string ein_of(const Funder& funder)
{
    const auto* filing = std::get_if<grants::Irs990PFSource>(&funder.source);
    return funder.ein.empty() && filing ? filing->ein : funder.ein;
}

FunderRecord record_of(const FunderHistory& history, const GrantFile& file, const grants::Day& today)
{
    const Funder& funder = *history.funder;
    FunderRecord record;
    record.id = funder.id;
    record.name = funder.name;
    record.line = label(funder.kind, Lang::en);
    if (const std::string ein = ein_of(funder); !ein.empty())
        record.line += " · EIN " + ein;
    record.tiles = tiles(history, file, today);
    record.contact = contact_lines(funder);
    record.giving = giving_lines(funder);
    const NextDates dates(file, today);
    for (const Grant& grant : grants::Pipeline::grants(file))
        if (grant.funderID == funder.id)
            record.grants.push_back(grant_row(grant, funder.name, dates, file));
    std::reverse(record.grants.begin(), record.grants.end());
    return record;
}

} // namespace

FundersPresentation funders_presentation(
    const GrantFile& file, const grants::Day& today, const std::optional<Uuid>& chosen)
{
    const std::vector<FunderHistory> histories = funder_histories(file, today);
    FundersPresentation page;
    page.facts = count_words(histories.size(), "funder");
    for (const FunderHistory& history : histories)
        page.lines.push_back(line_of(history, file));
    if (histories.empty())
        return page;
    const auto wanted = std::find_if(
        histories.begin(), histories.end(), [&](const FunderHistory& history) { return history.funder->id == chosen; });
    page.record = record_of(wanted == histories.end() ? histories.front() : *wanted, file, today);
    return page;
}

} // namespace quillfern::app
