#include "platform/version_pruning.h"

#include <set>

namespace quillfern::platform {
namespace {

constexpr std::int64_t day_length = 86'400'000; // milliseconds
constexpr std::int64_t week_length = 7 * day_length;

std::int64_t period_of(Instant moment, std::int64_t length)
{
    const std::int64_t rest = moment.milliseconds % length;
    return (moment.milliseconds - (rest < 0 ? rest + length : rest)) / length;
}

/// Decides in the order from the newest to the oldest.
class Sieve {
public:
    Sieve(Instant now, const PruningRule& rule) : now_(now), rule_(rule) { }

    bool keeps(const KeptState& state)
    {
        const bool wanted = state.inUse || is_recent() || is_first_of(state, day_length, rule_.days, days_)
            || is_first_of(state, week_length, rule_.weeks, weeks_);
        if (!wanted)
            return false;
        fits_ = fits_ && bytes_ + state.bytes <= rule_.bytes; // an older one may share what a newer one held
        if (!fits_ && count_ > 0 && !state.inUse)
            return false;
        ++count_;
        bytes_ += state.bytes;
        days_.insert(period_of(state.savedAt, day_length));
        weeks_.insert(period_of(state.savedAt, week_length));
        return true;
    }

private:
    bool is_recent() const { return count_ < rule_.recent; }

    bool is_first_of(
        const KeptState& state, std::int64_t length, std::int64_t most, const std::set<std::int64_t>& seen) const
    {
        const std::int64_t period = period_of(state.savedAt, length);
        return period > period_of(now_, length) - most && !seen.contains(period);
    }

    Instant now_;
    const PruningRule& rule_;
    std::size_t count_ = 0;
    std::int64_t bytes_ = 0;
    bool fits_ = true;
    std::set<std::int64_t> days_;
    std::set<std::int64_t> weeks_;
};

} // namespace

std::vector<std::size_t> states_to_drop(
    const std::vector<KeptState>& newest_first, Instant now, const PruningRule& rule)
{
    Sieve sieve(now, rule);
    std::vector<std::size_t> dropped;
    for (std::size_t i = 0; i < newest_first.size(); ++i)
        if (!sieve.keeps(newest_first[i]))
            dropped.push_back(i);
    return dropped;
}

} // namespace quillfern::platform
