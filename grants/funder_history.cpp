#include "grants/funder_history.h"

#include "grants/agenda_entries.h"
#include "grants/summaries.h"
#include "platform/locale_text.h"

#include <algorithm>
#include <unordered_map>

namespace quillfern::grants {
namespace {

std::optional<Day> next_deadline(const Grant& grant, const FileSettings& settings, const Day& today)
{
    std::optional<Day> next;
    for_each_entry(grant, settings, [&](const AgendaEntry& entry) {
        if (!entry.done && entry.day >= today && (!next || entry.day < *next))
            next = entry.day;
    });
    return next;
}

void add(FunderHistory& history, const Grant& grant, const FileSettings& settings, const Day& today)
{
    ++history.grantCount;
    history.asked += grant.ask.value_or(Money{});
    history.awarded += award_value(grant);
    history.declinedCount += grant.stage == Stage::declined ? 1 : 0;
    if (grant.stage == Stage::awarded) {
        ++history.awardedCount;
        history.lastAward = std::max(history.lastAward, key_day(grant)); // an absent day comes before every other
    }
    const auto next = next_deadline(grant, settings, today);
    if (next && (!history.nextDeadline || *next < *history.nextDeadline))
        history.nextDeadline = next;
}

struct Named {
    std::string sort_key;
    FunderHistory history;
};

} // namespace

std::vector<FunderHistory> funder_histories(const GrantFile& file, const Day& today)
{
    std::unordered_map<Uuid, FunderHistory> by_funder;
    for (const Grant& grant : file.grants)
        if (grant.funderID)
            add(by_funder[*grant.funderID], grant, file.settings, today);

    std::vector<Named> named;
    named.reserve(file.funders.size());
    for (const Shared<Funder>& funder : file.funders) {
        const auto found = by_funder.find(funder->id);
        Named& entry = named.emplace_back(Named{platform::name_sort_key(funder->name), {}});
        if (found != by_funder.end())
            entry.history = found->second;
        entry.history.funder = funder;
    }
    std::stable_sort(
        named.begin(), named.end(), [](const Named& a, const Named& b) { return a.sort_key < b.sort_key; });

    std::vector<FunderHistory> histories;
    histories.reserve(named.size());
    for (Named& entry : named)
        histories.push_back(std::move(entry.history));
    return histories;
}

} // namespace quillfern::grants
