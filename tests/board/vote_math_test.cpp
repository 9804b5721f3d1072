#include "board/labels.h"
#include "board/vote_math.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace quillfern;
using namespace quillfern::board;

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

VoteRecord counted(std::int64_t ayes, std::int64_t nays, std::int64_t abstentions = 0, std::int64_t recusals = 0)
{
    VoteRecord record;
    record.ayes = ayes;
    record.nays = nays;
    record.abstentions = abstentions;
    record.recusals = recusals;
    return record;
}

} // namespace

TEST(Quorum, IsTakenUpwardAndNeverBelowOne)
{
    const struct {
        QuorumRule rule;
        std::int64_t seats, needed;
    } cases[] = {
        {FractionQuorum{1, 3}, 10, 4},
        {FractionQuorum{1, 3}, 9, 3},
        {FractionQuorum{0, 3}, 10, 6},
        {FractionQuorum{1, -2}, 10, 6},
        {FractionQuorum{1, 3}, 0, 1},
        {FractionQuorum{1, 3}, -5, 1},
        {FractionQuorum{3, 2}, 10, 15},
        {FixedQuorum{0}, 9, 1},
        {FixedQuorum{12}, 9, 12},
        {FixedQuorum{-3}, 9, 1},
        {MajorityQuorum{}, 0, 1},
        {MajorityQuorum{}, 7, 4},
        {MajorityQuorum{}, 8, 5},
        {MajorityQuorum{}, smallest, 1},
        {FractionQuorum{largest, largest}, largest, largest},
        {FractionQuorum{largest, 1}, largest, largest},
        {FractionQuorum{1, largest}, largest, 1},
        {MajorityQuorum{}, largest, largest / 2 + 1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(VoteMath::quorum_needed(one.rule, one.seats), one.needed) << one.rule.index() << " of " << one.seats;
}

TEST(Votes, AreWarnedAboutInOrderWithoutChangingTheOutcome)
{
    VoteRecord record = counted(3, 2, 1);
    record.presentVoting = 5;
    record.quorumMet = false;
    const VoteResult carried = VoteMath::evaluate(record, {});
    EXPECT_EQ(carried.outcome, Outcome::carried);
    EXPECT_FALSE(carried.quorumMet);
    EXPECT_EQ(carried.warnings, (std::vector{VoteWarning::noQuorum, VoteWarning::moreVotesThanPresent}));

    record.presentVoting = 0;
    record.quorumMet = true;
    EXPECT_TRUE(VoteMath::evaluate(record, {}).warnings.empty());

    const VoteResult silent = VoteMath::evaluate(counted(0, 0, 2), {});
    EXPECT_EQ(silent.outcome, Outcome::failed);
    EXPECT_EQ(silent.ayesNeeded, 1);
    EXPECT_EQ(silent.denominator, 0);
    EXPECT_EQ(silent.warnings, std::vector{VoteWarning::nobodyVoted});
}

TEST(Votes, ByGeneralConsentCountEveryonePresentWhoIsNotRecused)
{
    VoteRecord record = counted(99, 99, 99, 1);
    record.method = VoteMethod::generalConsent;
    record.presentVoting = 6;
    const VoteResult result = VoteMath::evaluate(record, {});
    EXPECT_EQ(result.tally, (Tally{5, 0, 0, 1, 0}));
    EXPECT_EQ(result.ayesNeeded, 3);
    EXPECT_EQ(result.outcome, Outcome::carried);

    record.recusals = 9;
    EXPECT_EQ(VoteMath::evaluate(record, {}).warnings, std::vector{VoteWarning::nobodyVoted});
}

TEST(Votes, NeverOverflow)
{
    const VoteRecord tie = counted(largest, largest, largest, largest);
    EXPECT_EQ(VoteMath::evaluate(tie, {}).outcome, Outcome::failed);
    EXPECT_EQ(VoteMath::evaluate(tie, {}).denominator, largest);
    EXPECT_EQ(VoteMath::evaluate(counted(largest, 1), {Threshold::twoThirds, VoteBasis::votesCast}).outcome,
        Outcome::carried);
    EXPECT_EQ(VoteMath::tally(counted(smallest, -1, -2, -3)), Tally{});
    EXPECT_EQ(VoteMath::ayes_needed(Threshold::twoThirds, largest), largest - largest / 3);

    VoteRecord nobody = counted(1, 0, 0, largest);
    nobody.presentVoting = smallest;
    EXPECT_EQ(VoteMath::evaluate(nobody, {Threshold::majority, VoteBasis::present}).denominator, 0);
}

// Every way in which a board of up to seven can vote, each member by each choice, decided by the words of the rule:
// members are asked one by one, and shares are compared without division.
TEST(Votes, CarryExactlyWhenTheWordsOfTheRuleAreTrue)
{
    const auto base_members = [](VoteBasis basis, const std::vector<VoteChoice>& board) {
        std::int64_t members = 0;
        for (const VoteChoice choice : board) {
            const bool cast = choice == VoteChoice::aye || choice == VoteChoice::nay;
            const bool here_and_free = cast || choice == VoteChoice::abstain;
            members += basis == VoteBasis::entireBoard || (basis == VoteBasis::present ? here_and_free : cast) ? 1 : 0;
        }
        return members;
    };
    const auto true_by_words = [&](const VoteRule& rule, const std::vector<VoteChoice>& board) {
        const auto ayes = std::count(board.begin(), board.end(), VoteChoice::aye);
        const auto others = base_members(rule.basis, board) - ayes;
        if (ayes == 0)
            return false;
        switch (rule.threshold) {
        case Threshold::majority: // more in favor than all the others of the base together
            return ayes > others;
        case Threshold::twoThirds: // at least two in favor for each other one
            return ayes >= 2 * others;
        case Threshold::unanimous: // nobody of the base withheld an aye
            return others == 0 && std::count(board.begin(), board.end(), VoteChoice::nay) == 0;
        }
        return false;
    };
    std::int64_t cases = 0;
    std::vector<VoteChoice> board;
    const std::function<void(std::size_t)> vote_of = [&](std::size_t seats) {
        if (board.size() < seats) {
            for (int choice = 0; choice < 5; ++choice) {
                board.push_back(static_cast<VoteChoice>(choice));
                vote_of(seats);
                board.pop_back();
            }
            return;
        }
        const auto with = [&](VoteChoice choice) { return std::count(board.begin(), board.end(), choice); };
        VoteRecord by_count =
            counted(with(VoteChoice::aye), with(VoteChoice::nay), with(VoteChoice::abstain), with(VoteChoice::recused));
        by_count.seats = static_cast<std::int64_t>(seats);
        by_count.presentVoting = by_count.seats - with(VoteChoice::absent);
        VoteRecord by_name = by_count;
        by_name.method = VoteMethod::rollCall;
        for (const VoteChoice choice : board)
            by_name.rollCall.push_back({{}, choice});
        for (int rule = 0; rule < 9; ++rule) {
            const VoteRule one{static_cast<Threshold>(rule / 3), static_cast<VoteBasis>(rule % 3)};
            const Outcome expected = true_by_words(one, board) ? Outcome::carried : Outcome::failed;
            ASSERT_EQ(VoteMath::evaluate(by_count, one).outcome, expected) << rule;
            ASSERT_EQ(VoteMath::evaluate(by_name, one).outcome, expected) << rule;
            cases += 2;
        }
    };
    for (std::size_t seats = 0; seats <= 7; ++seats)
        vote_of(seats);
    RecordProperty("votes_checked", std::to_string(cases));
    EXPECT_EQ(cases, 97656 * 18);
}

TEST(VoteTexts, ReadInBothLanguages)
{
    EXPECT_EQ(rule_label({}, Lang::en), "Majority of votes cast");
    EXPECT_EQ(rule_label({Threshold::twoThirds, VoteBasis::entireBoard}, Lang::es), "Dos tercios de toda la junta");
    EXPECT_EQ(tally_sentence({5, 2, 0, 1, 3}, Lang::en), "5 in favor, 2 opposed, 1 recused");
    EXPECT_EQ(tally_sentence({0, 0, 1, 0, 0}, Lang::en), "0 in favor, 0 opposed, 1 abstaining");
    EXPECT_EQ(tally_sentence({5, 2, 3, 1, 0}, Lang::es), "5 a favor, 2 en contra, 3 abstenciones, 1 inhibidos");
}
