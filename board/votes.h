#pragma once

#include "base/uuid.h"

#include <cstdint>
#include <variant>
#include <vector>

/// The rules by which a board decides, and what was recorded when it did. The order of an enumeration's cases is the
/// order of pickers, and a case's name is its text in files.
namespace quillfern::board {

/// Quorum is a share of the seats, taken upward to a whole member. A numerator or denominator below 1 is malformed and
/// counts as a majority.
struct FractionQuorum {
    std::int64_t numerator = 1;
    std::int64_t denominator = 2;

    friend bool operator==(const FractionQuorum&, const FractionQuorum&) = default;
};

/// Quorum is a head count, whatever the number of seats.
struct FixedQuorum {
    std::int64_t members = 1;

    friend bool operator==(const FixedQuorum&, const FixedQuorum&) = default;
};

/// Quorum is more than half of the seats.
struct MajorityQuorum {
    friend bool operator==(const MajorityQuorum&, const MajorityQuorum&) = default;
};

using QuorumRule = std::variant<FractionQuorum, FixedQuorum, MajorityQuorum>;

struct QuorumStatus {
    std::int64_t present = 0; ///< voting members present
    std::int64_t needed = 0;
    std::int64_t base = 0; ///< the seat count that the rule was applied to

    bool met() const { return present >= needed; }
    friend bool operator==(const QuorumStatus&, const QuorumStatus&) = default;
};

enum class Threshold { majority, twoThirds, unanimous };
enum class VoteBasis { votesCast, present, entireBoard };
enum class VoteChoice { aye, nay, abstain, recused, absent };
enum class VoteMethod { counts, rollCall, generalConsent };
enum class Outcome { carried, failed };
enum class VoteWarning { noQuorum, moreVotesThanPresent, nobodyVoted };

/// How many ayes a motion needs, and of what.
struct VoteRule {
    Threshold threshold = Threshold::majority;
    VoteBasis basis = VoteBasis::votesCast;

    friend bool operator==(const VoteRule&, const VoteRule&) = default;
};

struct RollCallEntry {
    Uuid memberID;
    VoteChoice choice = VoteChoice::aye;

    friend bool operator==(const RollCallEntry&, const RollCallEntry&) = default;
};

/// A vote as it was taken. Only this is kept; the result is counted from it each time it is shown.
struct VoteRecord {
    VoteMethod method = VoteMethod::counts;
    std::int64_t ayes = 0; ///< this and the next two: by `counts` only
    std::int64_t nays = 0;
    std::int64_t abstentions = 0;
    std::int64_t recusals = 0; ///< by `counts` and `generalConsent`
    std::vector<RollCallEntry> rollCall; ///< by `rollCall` only
    std::int64_t presentVoting = 0; ///< voting members present at the vote
    std::int64_t seats = 0; ///< voting seats at the time of the vote
    bool quorumMet = true; ///< whether a quorum was present at the vote

    friend bool operator==(const VoteRecord&, const VoteRecord&) = default;
};

struct Tally {
    std::int64_t ayes = 0;
    std::int64_t nays = 0;
    std::int64_t abstentions = 0;
    std::int64_t recusals = 0;
    std::int64_t absent = 0;

    friend bool operator==(const Tally&, const Tally&) = default;
};

struct VoteResult {
    Outcome outcome = Outcome::failed;
    Tally tally;
    std::int64_t ayesNeeded = 1; ///< never 0: nothing carries without an aye
    std::int64_t denominator = 0;
    bool quorumMet = true;
    std::vector<VoteWarning> warnings; ///< none of them changes the outcome

    friend bool operator==(const VoteResult&, const VoteResult&) = default;
};

} // namespace quillfern::board
