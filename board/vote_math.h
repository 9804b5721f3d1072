#pragma once

#include "board/votes.h"

#include <cstdint>

/// Counts votes and quorums. Pure arithmetic: negative counts are read as 0 and no input overflows; a result beyond 64
/// bits is given as the largest number.
///
///     VoteMath::quorum_needed(FractionQuorum{1, 3}, 10);      // 4
///     VoteMath::ayes_needed(Threshold::twoThirds, 8);         // 6
///     VoteMath::evaluate(*motion.vote, motion.rule).outcome;  // Outcome::carried
namespace quillfern::board::VoteMath {

/// How many voting members must be present, at least 1. A fixed number larger than the board is kept as it is.
std::int64_t quorum_needed(const QuorumRule& rule, std::int64_t seats);

/// How many ayes the threshold needs of a base, at least 1: a tie is no majority, and two thirds are taken upward.
std::int64_t ayes_needed(Threshold threshold, std::int64_t base);

Tally tally(const VoteRecord& record);

/// Whether the motion carried and why. A missing quorum is a warning and never changes the outcome: what the board then
/// does about it is for the board to say.
VoteResult evaluate(const VoteRecord& record, const VoteRule& rule);

} // namespace quillfern::board::VoteMath
