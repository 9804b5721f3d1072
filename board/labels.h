#pragma once

#include "base/text.h"
#include "board/board.h"

#include <string>
#include <string_view>

/// What a person reads for each case of the board's enumerations, in pickers, pages and generated documents.
namespace quillfern::board {

std::string_view label(Role role, Lang lang);
std::string_view label(OrgType type, Lang lang);
std::string_view label(MeetingKind kind, Lang lang);
std::string_view label(AttendanceStatus status, Lang lang);
std::string_view label(AgendaSection section, Lang lang);
std::string_view label(MotionStatus status, Lang lang);
std::string_view label(ActionStatus status, Lang lang);
std::string_view label(Threshold threshold, Lang lang);
std::string_view label(VoteBasis basis, Lang lang); ///< follows a threshold: of votes cast
std::string_view label(VoteChoice choice, Lang lang);
std::string_view label(VoteMethod method, Lang lang);
std::string_view label(Outcome outcome, Lang lang);
std::string_view label(VoteWarning warning, Lang lang); ///< a sentence
std::string_view label(MinutesState state, Lang lang);
std::string_view label(const QuorumRule& rule, Lang lang); ///< the kind of rule, without its numbers

/// Majority of votes cast
std::string rule_label(const VoteRule& rule, Lang lang);

/// 5 in favor, 2 opposed, 1 recused: ayes and nays always, abstentions and recusals when there are any.
std::string tally_sentence(const Tally& tally, Lang lang);

} // namespace quillfern::board
