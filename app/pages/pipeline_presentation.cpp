#include "app/pages/pipeline_presentation.h"

#include "app/pages/amount_words.h"
#include "app/pages/count_words.h"
#include "app/pages/funder_names.h"
#include "grants/labels.h"
#include "grants/summaries.h"

#include <algorithm>

namespace quillfern::app {
namespace {

using grants::Grant;
using grants::GrantFile;
using grants::Lang;
using grants::PipelineSummary;
using grants::Stage;
using grants::StageTotal;

using GrantList = std::vector<Shared<Grant>>;

std::string facts(const GrantFile& file, std::int64_t fiscal_year, std::size_t count)
{
    const grants::DayRange days = fiscal_calendar(file.org).range(fiscal_year);
    const auto undated = std::count_if(
        file.grants.begin(), file.grants.end(), [](const Shared<Grant>& grant) { return !key_day(grant).has_value(); });
    const auto words = [](const grants::Day& day) { return display_text(day, Lang::en, grants::DateStyle::long_); };
    std::string line = grants::fiscal_year_label(fiscal_year) + " · " + words(days.first) + " to " + words(days.last)
        + " · " + count_words(count, "grant");
    return undated == 0 ? line : line + ", " + std::to_string(undated) + " without a date left out";
}

std::vector<TileWords> tiles(const PipelineSummary& summary, const GrantFile& file)
{
    const std::int64_t decided = summary.awardedCount + summary.declinedCount;
    const auto grants = [](std::int64_t count) { return count_words(static_cast<std::size_t>(count), "grant"); };
    return {
        {"Open requests", amount_text(summary.openAsk, file), grants(summary.openCount) + " asked for"},
        {"Weighted by chance", amount_text(summary.openWeighted, file), "Open requests × their chance"},
        {"Awarded", amount_text(summary.awarded, file), grants(summary.awardedCount)},
        {"Win rate", summary.winRate ? std::to_string(*summary.winRate) + '%' : no_figure,
            decided == 0 ? "Nothing decided yet"
                         : std::to_string(summary.awardedCount) + " of " + std::to_string(decided) + " decided"},
    };
}

/// What the bar of a stage stands for.
double bar_amount(const StageTotal& total)
{
    const grants::Money amount = total.stage == Stage::awarded ? total.awarded : total.ask;
    return std::max(0.0, static_cast<double>(amount.cents));
}

StageBar bar(const StageTotal& total, double longest, const GrantFile& file)
{
    StageBar bar;
    bar.stage = total.stage;
    bar.label = label(total.stage, Lang::en);
    bar.count = std::to_string(total.count);
    bar.asked = amount_text(total.ask, file);
    bar.outlined = total.stage > Stage::awarded;
    bar.weighted = bar.outlined ? no_figure : amount_text(total.weighted, file);
    bar.awarded = total.stage == Stage::awarded ? amount_text(total.awarded, file) : no_figure;
    if (longest > 0) {
        bar.length = bar_amount(total) / longest;
        const double weighted = std::max(0.0, static_cast<double>(total.weighted.cents)) / longest;
        bar.solid = total.stage == Stage::awarded ? bar.length : bar.outlined ? 0 : std::min(weighted, bar.length);
    }
    bar.spoken = bar.label + ", " + count_words(static_cast<std::size_t>(total.count), "grant") + ", asked " + bar.asked
        + (bar.outlined ? std::string() : ", weighted " + bar.weighted)
        + (total.stage == Stage::awarded ? ", awarded " + bar.awarded : std::string());
    return bar;
}

std::vector<StageBar> bars(const PipelineSummary& summary, const GrantFile& file)
{
    double longest = 0;
    for (const StageTotal& total : summary.stages)
        longest = std::max(longest, bar_amount(total));
    std::vector<StageBar> bars;
    for (const StageTotal& total : summary.stages)
        bars.push_back(bar(total, longest, file));
    return bars;
}

RequestRow request_row(const Grant& grant, const std::string& funder, const grants::Day& today, const GrantFile& file)
{
    RequestRow row;
    row.id = grant.id;
    row.title = grant.title;
    row.funder = funder;
    row.stage = grant.stage;
    const std::int64_t chance = effective_probability(grant);
    row.chance = {std::to_string(chance) + '%', chance};
    row.asked = ask_figure(grant, file);
    row.weighted = amount_figure(weighted_ask(grant), file);
    const auto& day = grant.decidedOn && !is_open(grant.stage) ? grant.decidedOn : grant.decisionExpected;
    row.decision = day ? Figure{display_text(*day, Lang::en), day->days_since_epoch()} : Figure{"Not set", {}};
    row.late = is_open(grant.stage) && day && *day < today && !grant.decidedOn;
    row.spoken = row.title + ", " + row.funder + ", " + std::string(label(row.stage, Lang::en)) + ", chance "
        + row.chance.text + ", asked " + row.asked.text + ", weighted " + row.weighted.text + ", decision "
        + row.decision.text + (row.late ? ", overdue" : "");
    return row;
}

} // namespace

PipelinePresentation pipeline_presentation(
    const GrantFile& file, const grants::Day& today, std::int64_t fiscal_year, std::optional<Stage> stage)
{
    const GrantList grants = grants::Pipeline::grants(file, fiscal_year);
    const PipelineSummary summary = grants::Pipeline::summary(grants);
    const FunderNames funders(file);
    PipelinePresentation page;
    page.facts = facts(file, fiscal_year, grants.size());
    page.tiles = tiles(summary, file);
    page.bars = bars(summary, file);
    page.tableTitle = stage ? std::string(label(*stage, Lang::en)) : "Open request";
    for (const Grant& grant : grants)
        if (stage ? grant.stage == *stage : is_open(grant.stage))
            page.rows.push_back(request_row(grant, funders.of(grant.funderID), today, file));
    page.noRows =
        (stage ? "No grants in this stage in " : "No open requests in ") + grants::fiscal_year_label(fiscal_year);
    page.noGrants = file.grants.empty();
    return page;
}

} // namespace quillfern::app
