#include "grants/summaries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <set>

namespace quillfern::grants {
namespace {

/// By Stage; the last three are certain, whatever the grant says.
constexpr std::array<std::int64_t, 7> stage_probabilities = {10, 20, 35, 50, 100, 0, 0};

template <class... DayField>
std::optional<Day> first_set(const DayField&... days)
{
    std::optional<Day> first;
    ((first = first ? first : days), ...);
    return first;
}

void add(StageTotal& total, const Grant& grant)
{
    ++total.count;
    total.ask += grant.ask.value_or(Money{});
    total.weighted += weighted_ask(grant);
    total.awarded += award_value(grant);
}

std::optional<std::int64_t> win_rate(std::int64_t awarded, std::int64_t declined)
{
    const std::int64_t decided = awarded + declined;
    if (decided == 0)
        return std::nullopt;
    return std::llround(static_cast<double>(awarded) / static_cast<double>(decided) * 100);
}

/// A grant's place in the order by key day.
struct Placed {
    Day day; ///< the first of all days when the grant has none
    const Shared<Grant>* grant;
};

bool comes_before(const Placed& a, const Placed& b)
{
    return a.day != b.day ? a.day < b.day : (*a.grant)->title < (*b.grant)->title;
}

} // namespace

std::int64_t effective_probability(const Grant& grant)
{
    const std::int64_t usual = stage_probabilities[static_cast<std::size_t>(grant.stage)];
    if (!is_open(grant.stage))
        return usual;
    return std::clamp<std::int64_t>(grant.probability.value_or(usual), 0, 100);
}

Money weighted_ask(const Grant& grant)
{
    return grant.ask.value_or(Money{}).percentage(effective_probability(grant));
}

Money award_value(const Grant& grant)
{
    if (grant.stage != Stage::awarded)
        return {};
    return grant.awarded ? *grant.awarded : grant.ask.value_or(Money{});
}

std::optional<Day> key_day(const Grant& grant)
{
    switch (grant.stage) {
    case Stage::declined:
    case Stage::withdrawn:
        return first_set(grant.decidedOn, grant.decisionExpected, grant.applicationDue, grant.loiDue);
    case Stage::awarded:
        return first_set(grant.decidedOn, grant.awardStart, grant.decisionExpected, grant.applicationDue);
    case Stage::prospect:
    case Stage::loi:
    case Stage::drafting:
    case Stage::submitted:
        break;
    }
    return first_set(grant.decisionExpected, grant.applicationDue, grant.loiDue);
}

PipelineSummary Pipeline::summary(std::span<const Shared<Grant>> grants)
{
    PipelineSummary summary;
    summary.stages.resize(stage_probabilities.size());
    for (std::size_t i = 0; i < summary.stages.size(); ++i)
        summary.stages[i].stage = static_cast<Stage>(i);
    for (const Grant& grant : grants)
        add(summary.stages[static_cast<std::size_t>(grant.stage)], grant);
    for (const StageTotal& total : summary.stages) {
        if (!is_open(total.stage))
            continue;
        summary.openCount += total.count;
        summary.openAsk += total.ask;
        summary.openWeighted += total.weighted;
    }
    const StageTotal& awarded = summary.stages[static_cast<std::size_t>(Stage::awarded)];
    summary.awardedCount = awarded.count;
    summary.awarded = awarded.awarded;
    summary.declinedCount = summary.stages[static_cast<std::size_t>(Stage::declined)].count;
    summary.winRate = win_rate(summary.awardedCount, summary.declinedCount);
    return summary;
}

std::int64_t Pipeline::fiscalYear(const Day& day, const FiscalCalendar& calendar)
{
    return calendar.year_of(day);
}

DayRange Pipeline::range(std::int64_t fiscalYear, const FiscalCalendar& calendar)
{
    return calendar.range(fiscalYear);
}

std::vector<std::int64_t> Pipeline::fiscalYears(const GrantFile& file, const Day& today)
{
    const FiscalCalendar calendar = fiscal_calendar(file.org);
    std::set<std::int64_t, std::greater<>> years = {calendar.year_of(today)};
    for (const Grant& grant : file.grants)
        if (const auto day = key_day(grant))
            years.insert(calendar.year_of(*day));
    return {years.begin(), years.end()};
}

std::vector<Shared<Grant>> Pipeline::grants(const GrantFile& file, std::optional<std::int64_t> fiscalYear)
{
    const FiscalCalendar calendar = fiscal_calendar(file.org);
    std::vector<Placed> placed;
    for (const Shared<Grant>& grant : file.grants) {
        const auto day = key_day(grant);
        if (!fiscalYear || (day && calendar.year_of(*day) == *fiscalYear))
            placed.push_back({day.value_or(first_day_of_files), &grant});
    }
    std::stable_sort(placed.begin(), placed.end(), comes_before);
    std::vector<Shared<Grant>> grants;
    grants.reserve(placed.size());
    for (const Placed& place : placed)
        grants.push_back(*place.grant);
    return grants;
}

std::vector<Shared<Grant>> Pipeline::awards(const GrantFile& file, std::int64_t fiscalYear)
{
    auto awards = grants(file, fiscalYear);
    std::erase_if(awards, [](const Grant& grant) { return grant.stage != Stage::awarded; });
    return awards;
}

PaymentSummary Payments::summary(const Grant& grant, const Day& today)
{
    PaymentSummary summary;
    for (const Payment& payment : grant.payments) {
        summary.scheduled += payment.amount;
        if (is_received(payment)) {
            summary.received += received_amount(payment);
            summary.shortfall += std::max(Money{}, payment.amount - received_amount(payment));
            continue;
        }
        summary.outstanding += payment.amount;
        if (payment.expected < today)
            summary.overdue += payment.amount;
    }
    const Money award = grant.stage == Stage::awarded ? award_value(grant) : grant.awarded.value_or(Money{});
    summary.unscheduled = award - summary.scheduled;
    return summary;
}

Money Payments::received(const GrantFile& file, std::int64_t fiscalYear)
{
    const FiscalCalendar calendar = fiscal_calendar(file.org);
    Money received;
    for (const Grant& grant : file.grants)
        for (const Payment& payment : grant.payments)
            if (payment.receivedOn && calendar.year_of(*payment.receivedOn) == fiscalYear)
                received += received_amount(payment);
    return received;
}

} // namespace quillfern::grants
