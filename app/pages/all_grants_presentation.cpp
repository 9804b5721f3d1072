#include "app/pages/all_grants_presentation.h"

#include "app/pages/amount_words.h"
#include "app/pages/count_words.h"
#include "app/pages/funder_names.h"
#include "base/trim.h"
#include "grants/labels.h"
#include "grants/summaries.h"
#include "platform/search_text.h"

namespace quillfern::app {
namespace {

using grants::Grant;
using grants::GrantFile;
using grants::Lang;
using grants::Money;

/// Whether a grant's title or funder holds what is searched for. An empty search finds everything.
class Search {
public:
    explicit Search(std::string_view typed) : wanted_(platform::search_fold(trimmed(typed))) { }

    bool active() const { return !wanted_.empty(); }

    bool finds(const Grant& grant, const std::string& funder) const
    {
        const auto holds = [this](const std::string& text) {
            return platform::search_fold(text).find(wanted_) != std::string::npos;
        };
        return !active() || holds(grant.title) || holds(funder);
    }

private:
    std::string wanted_;
};

struct Found {
    std::vector<Shared<Grant>> grants; ///< to be shown
    std::size_t inYear = 0; ///< whatever their stage and name
    std::size_t undated = 0; ///< of those to be shown
    std::size_t elsewhere = 0; ///< found by the search, but in another year or stage
    bool searched = false;
};

Found find(const GrantFile& file, const GrantsFilter& filter, const FunderNames& funders)
{
    const Search search(filter.search);
    const grants::FiscalCalendar calendar = fiscal_calendar(file.org);
    Found found;
    found.searched = search.active();
    for (const Shared<Grant>& grant : grants::Pipeline::grants(file)) {
        const auto day = key_day(grant);
        const bool in_year = !day || calendar.year_of(*day) == filter.fiscalYear;
        const bool in_stage = !filter.stage || grant->stage == *filter.stage;
        const bool matches = search.finds(grant, funders.of(grant->funderID));
        found.inYear += in_year;
        found.elsewhere += matches && !(in_year && in_stage);
        if (!in_year || !in_stage || !matches)
            continue;
        found.grants.push_back(grant);
        found.undated += !day;
    }
    return found;
}

Emptiness why_empty(const GrantFile& file, const Found& found)
{
    if (!found.grants.empty())
        return Emptiness::none;
    if (file.grants.empty())
        return Emptiness::noGrants;
    if (found.searched)
        return Emptiness::noMatch;
    return found.inYear == 0 ? Emptiness::noneInYear : Emptiness::noneInStage;
}

EmptyWords empty_words(Emptiness why, const GrantsFilter& filter, const Found& found)
{
    const std::string year = grants::fiscal_year_label(filter.fiscalYear);
    switch (why) {
    case Emptiness::none:
        return {};
    case Emptiness::noGrants:
        return {"No grants yet", "Every grant has a row here, from first idea to last report."};
    case Emptiness::noneInYear:
        return {"No grants in " + year, "Choose another fiscal year in the tool bar."};
    case Emptiness::noneInStage:
        return {"No grants in this stage", "Show all stages, or choose another fiscal year in the tool bar."};
    case Emptiness::noMatch:
        break;
    }
    const std::string heading = "No grants match “" + std::string(filter.search) + "”";
    if (found.elsewhere == 0)
        return {heading, "Check the spelling, or clear the search."};
    const std::string where = filter.stage ? " in other stages or fiscal years." : " in other fiscal years.";
    return {heading, count_words(found.elsewhere, "grant") + (found.elsewhere == 1 ? " matches" : " match") + where};
}

std::string facts(const GrantsFilter& filter, const Found& found)
{
    const std::size_t shown = found.grants.size();
    std::string line = grants::fiscal_year_label(filter.fiscalYear) + " · ";
    if (shown < found.inYear)
        line += std::to_string(shown) + " of ";
    line += count_words(found.inYear, "grant");
    return found.undated == 0 ? line : line + ", " + std::to_string(found.undated) + " without a date";
}

} // namespace

GrantRow grant_row(const Grant& grant, const std::string& funder, const NextDates& dates, const GrantFile& file)
{
    GrantRow row;
    row.id = grant.id;
    row.title = grant.title;
    row.funder = funder;
    row.stage = grant.stage;
    row.asked = ask_figure(grant, file);
    row.awarded = award_figure(grant, file);
    row.next = dates.of(grant.id);
    row.owner = grant.owner;
    row.spoken = row.title + ", " + row.funder + ", " + std::string(label(row.stage, Lang::en)) + ", asked "
        + row.asked.text + ", " + row.next.date.text + (row.next.what.empty() ? "" : ", " + row.next.what)
        + (row.next.overdue ? ", overdue" : "");
    return row;
}

AllGrantsPresentation all_grants_presentation(
    const GrantFile& file, const grants::Day& today, const GrantsFilter& filter)
{
    const FunderNames funders(file);
    const NextDates dates(file, today);
    const Found found = find(file, filter, funders);
    AllGrantsPresentation page;
    Money asked;
    Money awarded;
    for (const Shared<Grant>& grant : found.grants) {
        page.rows.push_back(grant_row(grant, funders.of(grant->funderID), dates, file));
        asked += grant->ask.value_or(Money{});
        awarded += award_value(grant);
    }
    page.facts = facts(filter, found);
    page.order = found.grants.empty() ? "" : "ordered by key date";
    page.count = count_words(found.grants.size(), "grant");
    page.asked = amount_text(asked, file);
    page.awarded = amount_text(awarded, file);
    page.emptiness = why_empty(file, found);
    page.empty = empty_words(page.emptiness, filter, found);
    return page;
}

} // namespace quillfern::app
