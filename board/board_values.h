#pragma once

#include "board/board.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What pages, documents and rules derive from a board. Look-ups give a pointer into the board, null when there is no
/// such record.
namespace quillfern::board {

std::string display_name(const Board& board, Lang lang);
std::string body_display_name(const Board& board, Lang lang);
std::string display_name(const Member& member, Lang lang);

/// The meeting's own title, or its kind.
std::string display_title(const Meeting& meeting, Lang lang);

/// The members in office by role, within a role by name; numbers in names compare as numbers.
std::vector<Member> current_members(const Board& board);

/// The first of the current members who holds the role.
std::optional<Member> member_holding(const Board& board, Role role);

/// The members in office who vote, in stored order.
std::vector<Member> voting_members(const Board& board);

std::int64_t seat_count(const Board& board);
QuorumStatus quorum_status(const Board& board, std::int64_t present);

const Member* member_by_id(const Board& board, const Uuid& id);
const Meeting* meeting_by_id(const Board& board, const Uuid& id);
const ActionItem* action_by_id(const Board& board, const Uuid& id);
const Motion* motion_by_id(const Board& board, const Uuid& id);
const Meeting* meeting_of_motion(const Board& board, const Uuid& motion_id);
const AgendaItem* item_by_id(const Meeting& meeting, const Uuid& id);

/// How the member is marked; absent while nobody has marked the member. Of two marks the first counts.
std::optional<AttendanceStatus> attendance_of(const Meeting& meeting, const Uuid& member_id);

/// The voting members who count for the quorum: those present in the room or remotely. Who left early is gone when
/// votes are taken.
std::vector<Member> voting_members_present(const Board& board, const Meeting& meeting);
std::int64_t voting_present_count(const Board& board, const Meeting& meeting);

/// The result of a voted motion; absent while no vote is recorded.
std::optional<VoteResult> vote_result(const Motion& motion);
bool has_carried(const Motion& motion);

/// The items in the order in which an agenda shows them: by section, within one as stored.
std::vector<AgendaItem> shown_agenda(const Meeting& meeting);

/// The motion that takes a postponed or tabled one up again.
const Motion* resumption_of(const Board& board, const Uuid& motion_id);

/// The carried motions under items that approve the meeting's minutes, for picking one as the approval.
std::vector<Motion> approving_motions(const Board& board, const Uuid& meeting_id);

} // namespace quillfern::board
