#pragma once

#include "base/case_names.h"
#include "base/fields.h"
#include "board/board.h"

namespace quillfern {
class ReadState;
template <class T>
struct SeenKeys;
} // namespace quillfern

/// How the board's records are spelled in files and in the command line's JSON.
///
/// Reading is tolerant key by key, and one bad motion, item or action never takes more with it than itself: it is left
/// out of its list. Three things are not put together from halves, since the mixture would say what nobody decided: a
/// vote rule, a quorum rule and a roll call are replaced as a whole. A member without an id refuses the document: votes
/// and attendance would silently lose the person they belong to.
namespace quillfern {

template <>
inline constexpr auto case_names<board::Role> = names(
    "president", "vicePresident", "secretary", "treasurer", "director", "exOfficio", "staff", "other");
template <>
inline constexpr auto case_names<board::OrgType> = names("nonprofit", "hoa", "club", "other");
template <>
inline constexpr auto case_names<board::MeetingKind> = names("regular", "special", "annual", "committee");
template <>
inline constexpr auto case_names<board::AttendanceStatus> = names(
    "present", "remote", "absent", "excused", "leftEarly");
template <>
inline constexpr auto case_names<board::AgendaSection> = names(
    "opening", "minutes", "consent", "reports", "oldBusiness", "newBusiness", "openForum", "executive", "closing");
template <>
inline constexpr auto case_names<board::MotionStatus> = names("pending", "voted", "withdrawn", "postponed", "tabled");
template <>
inline constexpr auto case_names<board::ActionStatus> = names("open", "inProgress", "done", "dropped");
template <>
inline constexpr auto case_names<board::Threshold> = names("majority", "twoThirds", "unanimous");
template <>
inline constexpr auto case_names<board::VoteBasis> = names("votesCast", "present", "entireBoard");
template <>
inline constexpr auto case_names<board::VoteChoice> = names("aye", "nay", "abstain", "recused", "absent");
template <>
inline constexpr auto case_names<board::VoteMethod> = names("counts", "rollCall", "generalConsent");
template <>
inline constexpr auto case_names<board::Outcome> = names("carried", "failed");
template <>
inline constexpr auto case_names<board::VoteWarning> = names("noQuorum", "moreVotesThanPresent", "nobodyVoted");
template <>
inline constexpr auto case_names<board::MinutesState> = names("draft", "circulated", "approved");
template <>
inline constexpr auto case_names<board::QuorumRule> = names("fraction", "fixed", "majority");

template <>
inline constexpr auto fields<board::FractionQuorum> = field_list(
    required("numerator", &board::FractionQuorum::numerator),
    required("denominator", &board::FractionQuorum::denominator));
template <>
inline constexpr auto fields<board::FixedQuorum> = field_list(required("_0", &board::FixedQuorum::members));
template <>
inline constexpr auto fields<board::MajorityQuorum> = field_list();

template <>
inline constexpr auto fields<board::VoteRule> = field_list(
    required("threshold", &board::VoteRule::threshold), required("basis", &board::VoteRule::basis));
template <>
inline constexpr auto fields<board::RollCallEntry> = field_list(
    required("memberID", &board::RollCallEntry::memberID), required("choice", &board::RollCallEntry::choice));
template <>
inline constexpr auto fields<board::VoteRecord> = field_list(lenient("method", &board::VoteRecord::method),
    lenient("ayes", &board::VoteRecord::ayes), lenient("nays", &board::VoteRecord::nays),
    lenient("abstentions", &board::VoteRecord::abstentions), lenient("recusals", &board::VoteRecord::recusals),
    lenient("rollCall", &board::VoteRecord::rollCall), lenient("presentVoting", &board::VoteRecord::presentVoting),
    lenient("seats", &board::VoteRecord::seats), lenient("quorumMet", &board::VoteRecord::quorumMet));

template <>
inline constexpr auto fields<board::MinutesEvent> = field_list(lenient("date", &board::MinutesEvent::date),
    lenient("from", &board::MinutesEvent::from), lenient("to", &board::MinutesEvent::to),
    lenient("note", &board::MinutesEvent::note));
template <>
inline constexpr auto fields<board::MinutesRecord> = field_list(lenient("state", &board::MinutesRecord::state),
    lenient("approvedOn", &board::MinutesRecord::approvedOn),
    lenient("approvalReference", &board::MinutesRecord::approvalReference),
    lenient("approvedAtMeetingID", &board::MinutesRecord::approvedAtMeetingID),
    lenient_each("history", &board::MinutesRecord::history));

/// A mark without a readable person or status is no mark: nobody is counted present by a guess.
template <>
inline constexpr auto fields<board::Attendance> = field_list(
    required("memberID", &board::Attendance::memberID), required("status", &board::Attendance::status));
template <>
inline constexpr auto fields<board::AgendaItem> = field_list(lenient("id", &board::AgendaItem::id),
    lenient("section", &board::AgendaItem::section), lenient("title", &board::AgendaItem::title),
    lenient("detail", &board::AgendaItem::detail), lenient("presenterID", &board::AgendaItem::presenterID),
    lenient("minutes", &board::AgendaItem::minutes), lenient("notes", &board::AgendaItem::notes),
    lenient("carriedMotionID", &board::AgendaItem::carriedMotionID),
    lenient("carriedActionID", &board::AgendaItem::carriedActionID),
    lenient("approvesMeetingID", &board::AgendaItem::approvesMeetingID));
template <>
inline constexpr auto fields<board::Motion> = field_list(lenient("id", &board::Motion::id),
    lenient("number", &board::Motion::number), lenient("text", &board::Motion::text),
    lenient("itemID", &board::Motion::itemID), lenient("moverID", &board::Motion::moverID),
    lenient("seconderID", &board::Motion::seconderID), lenient("moverName", &board::Motion::moverName),
    lenient("seconderName", &board::Motion::seconderName), lenient("needsSecond", &board::Motion::needsSecond),
    lenient("rule", &board::Motion::rule), lenient("vote", &board::Motion::vote),
    lenient("status", &board::Motion::status), lenient("resumes", &board::Motion::resumes),
    lenient("note", &board::Motion::note), lenient("made", &board::Motion::made));
template <>
inline constexpr auto fields<board::ActionItem> = field_list(lenient("id", &board::ActionItem::id),
    lenient("title", &board::ActionItem::title), lenient("detail", &board::ActionItem::detail),
    lenient("ownerID", &board::ActionItem::ownerID), lenient("ownerName", &board::ActionItem::ownerName),
    lenient("due", &board::ActionItem::due), lenient("status", &board::ActionItem::status),
    lenient("meetingID", &board::ActionItem::meetingID), lenient("motionID", &board::ActionItem::motionID),
    lenient("created", &board::ActionItem::created), lenient("completed", &board::ActionItem::completed));
template <>
inline constexpr auto fields<board::Meeting> = field_list(lenient("id", &board::Meeting::id),
    lenient("kind", &board::Meeting::kind), lenient("title", &board::Meeting::title),
    lenient("date", &board::Meeting::date), lenient("lengthMinutes", &board::Meeting::lengthMinutes),
    lenient("location", &board::Meeting::location), lenient_each("agenda", &board::Meeting::agenda),
    lenient_each("attendance", &board::Meeting::attendance), lenient("guests", &board::Meeting::guests),
    lenient("presidingID", &board::Meeting::presidingID), lenient("recorderID", &board::Meeting::recorderID),
    lenient("calledToOrder", &board::Meeting::calledToOrder), lenient("adjourned", &board::Meeting::adjourned),
    lenient_each("motions", &board::Meeting::motions), lenient("minutes", &board::Meeting::minutes),
    lenient("notes", &board::Meeting::notes), lenient("purpose", &board::Meeting::purpose));

template <>
inline constexpr auto fields<board::Member> = field_list(identity("id", &board::Member::id),
    lenient("name", &board::Member::name), lenient("role", &board::Member::role),
    lenient("title", &board::Member::title), lenient("votes", &board::Member::votes),
    lenient("inOffice", &board::Member::inOffice), lenient("email", &board::Member::email),
    lenient("phone", &board::Member::phone), lenient("termEnds", &board::Member::termEnds));
template <>
inline constexpr auto fields<board::Board> = field_list(lenient("formatVersion", &board::Board::formatVersion),
    lenient("id", &board::Board::id), lenient("name", &board::Board::name), lenient("orgType", &board::Board::orgType),
    lenient("bodyName", &board::Board::bodyName), lenient("address", &board::Board::address),
    lenient("members", &board::Board::members), lenient("quorum", &board::Board::quorum),
    lenient("seats", &board::Board::seats), lenient("voteRule", &board::Board::voteRule),
    lenient("motionPrefix", &board::Board::motionPrefix), lenient("defaultLocation", &board::Board::defaultLocation),
    lenient("defaultStartMinutes", &board::Board::defaultStartMinutes),
    lenient("defaultLengthMinutes", &board::Board::defaultLengthMinutes),
    lenient_each("meetings", &board::Board::meetings), lenient_each("actions", &board::Board::actions),
    lenient("created", &board::Board::created), lenient("sample", &board::Board::sample));

/// Counted from a vote and printed by the command line; no file holds a result.
template <>
inline constexpr auto fields<board::Tally> = field_list(required("ayes", &board::Tally::ayes),
    required("nays", &board::Tally::nays), required("abstentions", &board::Tally::abstentions),
    required("recusals", &board::Tally::recusals), required("absent", &board::Tally::absent));
template <>
inline constexpr auto fields<board::VoteResult> = field_list(required("outcome", &board::VoteResult::outcome),
    required("tally", &board::VoteResult::tally), required("ayesNeeded", &board::VoteResult::ayesNeeded),
    required("denominator", &board::VoteResult::denominator), required("quorumMet", &board::VoteResult::quorumMet),
    required("warnings", &board::VoteResult::warnings));
template <>
inline constexpr auto fields<board::QuorumStatus> = field_list(required("present", &board::QuorumStatus::present),
    required("needed", &board::QuorumStatus::needed), required("base", &board::QuorumStatus::base));

} // namespace quillfern

/// What reading fills in: a fresh id and the moment of reading where there was none, the vote that a role has by
/// default, fresh ids in place of those that are used twice.
namespace quillfern::board {

void after_read(MinutesEvent& event, const SeenKeys<MinutesEvent>& seen, ReadState& state);
void after_read(AgendaItem& item, const SeenKeys<AgendaItem>& seen, ReadState& state);
void after_read(Motion& motion, const SeenKeys<Motion>& seen, ReadState& state);
void after_read(ActionItem& action, const SeenKeys<ActionItem>& seen, ReadState& state);
void after_read(Meeting& meeting, const SeenKeys<Meeting>& seen, ReadState& state);
void after_read(Member& member, const SeenKeys<Member>& seen, ReadState& state);
void after_read(Board& board, const SeenKeys<Board>& seen, ReadState& state);

} // namespace quillfern::board
