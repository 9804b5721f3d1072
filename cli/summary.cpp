#include "cli/documents.h"
#include "cli/json.h"
#include "cli/options.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "grants/amount_limits.h"
#include "grants/funder_history.h"
#include "grants/labels.h"
#include "grants/summaries.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillfern::cli {

using namespace grants;

/// The figures of one grant.
struct GrantFigures {
    Uuid id;
    std::string title;
    Stage stage = Stage::prospect;
    std::optional<Day> keyDay;
    std::int64_t probability = 0; ///< the effective one
    Money weighted;
    PaymentSummary payments;
};

/// All figures of a file, or those of one fiscal year.
struct Figures {
    std::vector<std::int64_t> fiscalYears;
    std::optional<std::int64_t> fiscalYear;
    std::vector<GrantFigures> grants;
    PipelineSummary pipeline;
    std::optional<std::vector<Uuid>> awards; ///< of the fiscal year
    std::optional<Money> received; ///< in the fiscal year
    std::vector<FunderHistory> funders;
};

} // namespace quillfern::cli

/// Printed by this verb only; no file holds a figure.
namespace quillfern {

template <>
inline constexpr auto fields<grants::StageTotal> = field_list(required("stage", &grants::StageTotal::stage),
    required("count", &grants::StageTotal::count), required("ask", &grants::StageTotal::ask),
    required("weighted", &grants::StageTotal::weighted), required("awarded", &grants::StageTotal::awarded));
template <>
inline constexpr auto fields<grants::PipelineSummary> = field_list(required("stages", &grants::PipelineSummary::stages),
    required("openCount", &grants::PipelineSummary::openCount), required("openAsk", &grants::PipelineSummary::openAsk),
    required("openWeighted", &grants::PipelineSummary::openWeighted),
    required("awardedCount", &grants::PipelineSummary::awardedCount),
    required("awarded", &grants::PipelineSummary::awarded),
    required("declinedCount", &grants::PipelineSummary::declinedCount),
    required("winRate", &grants::PipelineSummary::winRate));
template <>
inline constexpr auto fields<grants::PaymentSummary> = field_list(
    required("scheduled", &grants::PaymentSummary::scheduled), required("received", &grants::PaymentSummary::received),
    required("outstanding", &grants::PaymentSummary::outstanding),
    required("overdue", &grants::PaymentSummary::overdue), required("shortfall", &grants::PaymentSummary::shortfall),
    required("unscheduled", &grants::PaymentSummary::unscheduled));
template <>
inline constexpr auto fields<grants::FunderHistory> = field_list(required("funder", &grants::FunderHistory::funder),
    required("grantCount", &grants::FunderHistory::grantCount), required("asked", &grants::FunderHistory::asked),
    required("awarded", &grants::FunderHistory::awarded),
    required("awardedCount", &grants::FunderHistory::awardedCount),
    required("declinedCount", &grants::FunderHistory::declinedCount),
    required("lastAward", &grants::FunderHistory::lastAward),
    required("nextDeadline", &grants::FunderHistory::nextDeadline));
template <>
inline constexpr auto fields<cli::GrantFigures> = field_list(required("id", &cli::GrantFigures::id),
    required("title", &cli::GrantFigures::title), required("stage", &cli::GrantFigures::stage),
    required("keyDay", &cli::GrantFigures::keyDay), required("probability", &cli::GrantFigures::probability),
    required("weighted", &cli::GrantFigures::weighted), required("payments", &cli::GrantFigures::payments));
template <>
inline constexpr auto fields<cli::Figures> = field_list(required("fiscalYears", &cli::Figures::fiscalYears),
    required("fiscalYear", &cli::Figures::fiscalYear), required("grants", &cli::Figures::grants),
    required("pipeline", &cli::Figures::pipeline), required("awards", &cli::Figures::awards),
    required("received", &cli::Figures::received), required("funders", &cli::Figures::funders));

} // namespace quillfern

namespace quillfern::cli {

namespace {

struct Asked {
    std::string path;
    std::optional<std::int64_t> fiscal_year;
    Day today = today_here();
    Lang lang = Lang::en;
    bool json = false;
};

Figures figures(const GrantFile& file, const Asked& asked)
{
    const auto chosen = Pipeline::grants(file, asked.fiscal_year);
    Figures all;
    all.fiscalYears = Pipeline::fiscalYears(file, asked.today);
    all.fiscalYear = asked.fiscal_year;
    for (const Grant& grant : chosen) {
        all.grants.push_back({grant.id, grant.title, grant.stage, key_day(grant), effective_probability(grant),
            weighted_ask(grant), Payments::summary(grant, asked.today)});
    }
    all.pipeline = Pipeline::summary(chosen);
    all.funders = funder_histories(file, asked.today);
    if (asked.fiscal_year) {
        all.received = Payments::received(file, *asked.fiscal_year);
        all.awards.emplace();
        for (const Grant& grant : Pipeline::awards(file, *asked.fiscal_year))
            all.awards->push_back(grant.id);
    }
    return all;
}

constexpr Text pipeline_heading{"Pipeline", "Embudo"};
constexpr Text grants_heading{"Grants", "Subvenciones"};
constexpr Text funders_heading{"Funders", "Financiadores"};
constexpr Text years_heading{"Fiscal years", "Años fiscales"};
constexpr Text asked_word{"asked", "solicitado"};
constexpr Text weighted_word{"weighted", "ponderado"};
constexpr Text awarded_word{"awarded", "otorgado"};
constexpr Text received_word{"received", "recibido"};
constexpr Text outstanding_word{"outstanding", "pendiente"};
constexpr Text win_rate_words{"Win rate", "Tasa de éxito"};
constexpr Text received_in_words{"Received in", "Recibido en"};

/// Writes amounts in one currency and language.
struct Words {
    const std::string& currency;
    Lang lang;

    std::string operator()(Money amount) const { return display_text(amount, currency, lang); }
    std::string operator()(Money amount, const Text& word) const
    {
        return (*this)(amount) + ' ' + std::string(word(lang));
    }
};

using Columns = std::vector<TextTable::Alignment>;

std::string pipeline_text(const Figures& all, const Words& words)
{
    TextTable table(Columns{TextTable::left, TextTable::right, TextTable::right, TextTable::right, TextTable::right});
    table.heading(pipeline_heading(words.lang));
    for (const StageTotal& stage : all.pipeline.stages) {
        table.row({std::string(label(stage.stage, words.lang)), std::to_string(stage.count),
            words(stage.ask, asked_word), words(stage.weighted, weighted_word), words(stage.awarded, awarded_word)});
    }
    if (all.pipeline.winRate)
        table.line(std::string(win_rate_words(words.lang)) + ": " + std::to_string(*all.pipeline.winRate) + "%");
    if (all.received) {
        table.line(std::string(received_in_words(words.lang)) + ' ' + fiscal_year_label(*all.fiscalYear) + ": "
            + words(*all.received));
    }
    return table.text();
}

std::string grants_text(const Figures& all, const Words& words)
{
    TextTable table(Columns{TextTable::left, TextTable::left, TextTable::left, TextTable::right, TextTable::right,
        TextTable::right, TextTable::right});
    table.heading(grants_heading(words.lang));
    for (const GrantFigures& grant : all.grants) {
        table.row({grant.keyDay ? display_text(*grant.keyDay, words.lang) : "", grant.title,
            std::string(label(grant.stage, words.lang)), std::to_string(grant.probability) + "%",
            words(grant.weighted, weighted_word), words(grant.payments.received, received_word),
            words(grant.payments.outstanding, outstanding_word)});
    }
    return table.text();
}

std::string funders_text(const Figures& all, const Words& words)
{
    TextTable table(Columns{TextTable::left, TextTable::right, TextTable::right, TextTable::right, TextTable::left});
    table.heading(funders_heading(words.lang));
    for (const FunderHistory& history : all.funders) {
        table.row({history.funder->name, std::to_string(history.grantCount), words(history.asked, asked_word),
            words(history.awarded, awarded_word),
            history.nextDeadline ? display_text(*history.nextDeadline, words.lang) : ""});
    }
    return table.text();
}

std::string years_text(const Figures& all, Lang lang)
{
    std::string years;
    for (const std::int64_t year : all.fiscalYears)
        years += (years.empty() ? "" : ", ") + fiscal_year_label(year);
    return std::string(years_heading(lang)) + ": " + years + '\n';
}

std::string as_text(const Figures& all, const GrantFile& file, Lang lang)
{
    const Words words{file.org.currencyCode, lang};
    return pipeline_text(all, words) + '\n' + grants_text(all, words) + '\n' + funders_text(all, words) + '\n'
        + years_text(all, lang);
}

Answer run(const Asked& asked)
{
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const GrantFile& file = opened->package.file;
    if (!figures_fit(file))
        return fail(std::string(amounts_too_large));
    const Figures all = figures(file, asked);
    return asked.json ? json_text(all) : as_text(all, file, asked.lang);
}

} // namespace

void add_summary(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb = verbs.add(
        "summary", "Print the figures of the pipeline, payments and funders", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_fiscal_year(verb, asked->fiscal_year);
    add_today(verb, asked->today);
    add_lang(verb, asked->lang);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
