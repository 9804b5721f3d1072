#include "board/member_edits.h"

#include "board/board_values.h"
#include "board/references.h"

#include <algorithm>

namespace quillfern::board {
namespace {

bool votes_in(const Motion& motion, const Uuid& member_id)
{
    return motion.vote
        && std::any_of(motion.vote->rollCall.begin(), motion.vote->rollCall.end(),
            [&](const RollCallEntry& entry) { return entry.memberID == member_id; });
}

bool has_voted(const Board& board, const Uuid& member_id)
{
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            if (votes_in(motion, member_id))
                return true;
    return false;
}

} // namespace

Edited save_member(const Board& board, const Member& member)
{
    Board after = board;
    const auto stored = std::find_if(
        after.members.begin(), after.members.end(), [&](const Member& one) { return one.id == member.id; });
    if (stored == after.members.end())
        after.members.push_back(member);
    else
        *stored = member;
    return after;
}

Edited remove_member(const Board& board, const Uuid& member_id)
{
    if (!member_by_id(board, member_id))
        return fail(EditRefusal::noSuchMember);
    if (has_voted(board, member_id))
        return fail(EditRefusal::memberVoted);
    Leaving leaving;
    leaving.members.insert(member_id);
    Edited after = without_references(board, leaving);
    if (after)
        std::erase_if(after->members, [&](const Member& one) { return one.id == member_id; });
    return after;
}

} // namespace quillfern::board
