#include "board/board_values.h"

#include "base/trim.h"
#include "board/labels.h"
#include "board/vote_math.h"
#include "platform/locale_text.h"

#include <algorithm>
#include <tuple>

namespace quillfern::board {
namespace {

constexpr Text untitled_board{"Untitled board", "Junta sin nombre"};
constexpr Text usual_body{"Board of Directors", "Junta Directiva"};
constexpr Text unnamed_member{"Unnamed member", "Miembro sin nombre"};

std::string named_or(std::string_view name, const Text& otherwise, Lang lang)
{
    const std::string_view shown = trimmed(name);
    return std::string(shown.empty() ? otherwise(lang) : shown);
}

template <class Record>
const Record* by_id(const std::vector<Record>& records, const Uuid& id)
{
    const auto found = std::find_if(records.begin(), records.end(), [&](const Record& one) { return one.id == id; });
    return found == records.end() ? nullptr : &*found;
}

bool approves(const Meeting& meeting, const Motion& motion, const Uuid& approved_meeting)
{
    const AgendaItem* item = motion.itemID ? item_by_id(meeting, *motion.itemID) : nullptr;
    return item && item->approvesMeetingID == approved_meeting;
}

} // namespace

std::string display_name(const Board& board, Lang lang)
{
    return named_or(board.name, untitled_board, lang);
}

std::string body_display_name(const Board& board, Lang lang)
{
    return named_or(board.bodyName, usual_body, lang);
}

std::string display_name(const Member& member, Lang lang)
{
    return trimmed(member.name).empty() ? std::string(unnamed_member(lang)) : member.name;
}

std::string display_title(const Meeting& meeting, Lang lang)
{
    const std::string_view title = trimmed(meeting.title);
    return std::string(title.empty() ? label(meeting.kind, lang) : title);
}

std::vector<Member> current_members(const Board& board)
{
    struct Row {
        std::string sort_key;
        const Member* member;
    };
    std::vector<Row> rows;
    for (const Member& member : board.members)
        if (member.inOffice)
            rows.push_back({platform::numbered_name_sort_key(member.name), &member});
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return std::tie(a.member->role, a.sort_key) < std::tie(b.member->role, b.sort_key);
    });
    std::vector<Member> members;
    members.reserve(rows.size());
    for (const Row& row : rows)
        members.push_back(*row.member);
    return members;
}

std::optional<Member> member_holding(const Board& board, Role role)
{
    for (const Member& member : current_members(board))
        if (member.role == role)
            return member;
    return std::nullopt;
}

std::vector<Member> voting_members(const Board& board)
{
    std::vector<Member> members;
    std::copy_if(board.members.begin(), board.members.end(), std::back_inserter(members),
        [](const Member& member) { return member.inOffice && member.votes; });
    return members;
}

std::int64_t seat_count(const Board& board)
{
    return board.seats.value_or(static_cast<std::int64_t>(voting_members(board).size()));
}

QuorumStatus quorum_status(const Board& board, std::int64_t present)
{
    const std::int64_t seats = seat_count(board);
    return {present, VoteMath::quorum_needed(board.quorum, seats), seats};
}

const Member* member_by_id(const Board& board, const Uuid& id)
{
    return by_id(board.members, id);
}

const Meeting* meeting_by_id(const Board& board, const Uuid& id)
{
    for (const Shared<Meeting>& meeting : board.meetings)
        if (meeting->id == id)
            return &*meeting;
    return nullptr;
}

const ActionItem* action_by_id(const Board& board, const Uuid& id)
{
    return by_id(board.actions, id);
}

const Meeting* meeting_of_motion(const Board& board, const Uuid& motion_id)
{
    for (const Shared<Meeting>& meeting : board.meetings)
        if (by_id(meeting->motions, motion_id))
            return &*meeting;
    return nullptr;
}

const Motion* motion_by_id(const Board& board, const Uuid& id)
{
    const Meeting* meeting = meeting_of_motion(board, id);
    return meeting ? by_id(meeting->motions, id) : nullptr;
}

const AgendaItem* item_by_id(const Meeting& meeting, const Uuid& id)
{
    return by_id(meeting.agenda, id);
}

std::optional<AttendanceStatus> attendance_of(const Meeting& meeting, const Uuid& member_id)
{
    for (const Attendance& mark : meeting.attendance)
        if (mark.memberID == member_id)
            return mark.status;
    return std::nullopt;
}

std::vector<Member> voting_members_present(const Board& board, const Meeting& meeting)
{
    std::vector<Member> members = voting_members(board);
    std::erase_if(members, [&](const Member& member) {
        const auto status = attendance_of(meeting, member.id);
        return status != AttendanceStatus::present && status != AttendanceStatus::remote;
    });
    return members;
}

std::int64_t voting_present_count(const Board& board, const Meeting& meeting)
{
    return static_cast<std::int64_t>(voting_members_present(board, meeting).size());
}

std::optional<VoteResult> vote_result(const Motion& motion)
{
    if (!motion.vote)
        return std::nullopt;
    return VoteMath::evaluate(*motion.vote, motion.rule);
}

bool has_carried(const Motion& motion)
{
    const auto result = vote_result(motion);
    return motion.status == MotionStatus::voted && result && result->outcome == Outcome::carried;
}

std::vector<AgendaItem> shown_agenda(const Meeting& meeting)
{
    std::vector<AgendaItem> items = meeting.agenda;
    std::stable_sort(
        items.begin(), items.end(), [](const AgendaItem& a, const AgendaItem& b) { return a.section < b.section; });
    return items;
}

const Motion* resumption_of(const Board& board, const Uuid& motion_id)
{
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            if (motion.resumes == motion_id)
                return &motion;
    return nullptr;
}

std::vector<Motion> approving_motions(const Board& board, const Uuid& meeting_id)
{
    std::vector<Motion> found;
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            if (has_carried(motion) && approves(*meeting, motion, meeting_id))
                found.push_back(motion);
    return found;
}

} // namespace quillfern::board
