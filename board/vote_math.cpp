#include "board/vote_math.h"

#include <algorithm>
#include <limits>

namespace quillfern::board::VoteMath {
namespace {

/// Sums of four counts and products of two need more than 64 bits to stay exact.
__extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): only a typedef takes the extension mark

std::int64_t narrowed(Wide value)
{
    return static_cast<std::int64_t>(std::min<Wide>(value, std::numeric_limits<std::int64_t>::max()));
}

constexpr std::int64_t at_least_zero(std::int64_t count)
{
    return std::max<std::int64_t>(count, 0);
}

Wide exact_ayes_needed(Threshold threshold, Wide base)
{
    switch (threshold) {
    case Threshold::majority:
        return base / 2 + 1;
    case Threshold::twoThirds:
        return std::max<Wide>((2 * base + 2) / 3, 1);
    case Threshold::unanimous:
        break;
    }
    return std::max<Wide>(base, 1);
}

Wide denominator(const VoteRecord& record, const Tally& counted, VoteBasis basis)
{
    switch (basis) {
    case VoteBasis::votesCast:
        return Wide(counted.ayes) + counted.nays;
    case VoteBasis::present: // one who abstains stays in the base and so counts against; one recused leaves it
        return std::max<Wide>(Wide(record.presentVoting) - counted.recusals, 0);
    case VoteBasis::entireBoard:
        break;
    }
    return at_least_zero(record.seats);
}

bool carries(const Tally& counted, Threshold threshold, Wide needed)
{
    if (threshold == Threshold::unanimous && counted.nays >= 1)
        return false;
    return counted.ayes >= needed;
}

std::vector<VoteWarning> warnings(const VoteRecord& record, const Tally& counted)
{
    std::vector<VoteWarning> found;
    if (!record.quorumMet)
        found.push_back(VoteWarning::noQuorum);
    const Wide votes = Wide(counted.ayes) + counted.nays + counted.abstentions + counted.recusals;
    if (record.method != VoteMethod::generalConsent && record.presentVoting >= 1 && record.presentVoting < votes)
        found.push_back(VoteWarning::moreVotesThanPresent);
    if (counted.ayes == 0 && counted.nays == 0)
        found.push_back(VoteWarning::nobodyVoted);
    return found;
}

Tally roll_call_tally(const std::vector<RollCallEntry>& roll_call)
{
    const auto count = [&](VoteChoice choice) -> std::int64_t {
        return std::count_if(
            roll_call.begin(), roll_call.end(), [&](const auto& entry) { return entry.choice == choice; });
    };
    return {count(VoteChoice::aye), count(VoteChoice::nay), count(VoteChoice::abstain), count(VoteChoice::recused),
        count(VoteChoice::absent)};
}

} // namespace

std::int64_t quorum_needed(const QuorumRule& rule, std::int64_t seats)
{
    const std::int64_t base = at_least_zero(seats);
    if (const auto* fixed = std::get_if<FixedQuorum>(&rule))
        return std::max<std::int64_t>(fixed->members, 1);
    const auto* fraction = std::get_if<FractionQuorum>(&rule);
    if (!fraction || fraction->numerator < 1 || fraction->denominator < 1)
        return base / 2 + 1;
    const Wide share = (Wide(base) * fraction->numerator + fraction->denominator - 1) / fraction->denominator;
    return narrowed(std::max<Wide>(share, 1));
}

std::int64_t ayes_needed(Threshold threshold, std::int64_t base)
{
    return narrowed(exact_ayes_needed(threshold, at_least_zero(base)));
}

Tally tally(const VoteRecord& record)
{
    const std::int64_t recusals = at_least_zero(record.recusals);
    switch (record.method) {
    case VoteMethod::counts:
        return {at_least_zero(record.ayes), at_least_zero(record.nays), at_least_zero(record.abstentions), recusals, 0};
    case VoteMethod::rollCall:
        return roll_call_tally(record.rollCall);
    case VoteMethod::generalConsent:
        break;
    }
    return {at_least_zero(at_least_zero(record.presentVoting) - recusals), 0, 0, recusals, 0};
}

VoteResult evaluate(const VoteRecord& record, const VoteRule& rule)
{
    const Tally counted = tally(record);
    const Wide base = denominator(record, counted, rule.basis);
    const Wide needed = exact_ayes_needed(rule.threshold, base);
    VoteResult result;
    result.outcome = carries(counted, rule.threshold, needed) ? Outcome::carried : Outcome::failed;
    result.tally = counted;
    result.ayesNeeded = narrowed(needed);
    result.denominator = narrowed(base);
    result.quorumMet = record.quorumMet;
    result.warnings = warnings(record, counted);
    return result;
}

} // namespace quillfern::board::VoteMath
