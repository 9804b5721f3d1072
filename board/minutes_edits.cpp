#include "board/minutes_edits.h"

namespace quillfern::board {
namespace {

template <class Step>
MinutesEdited step_minutes(const Board& board, const Uuid& meeting_id, Step&& step)
{
    Board after = board;
    for (Shared<Meeting>& one : after.meetings) {
        if (one->id != meeting_id)
            continue;
        Meeting changed = one;
        const Result<Done, MinutesError> done = step(changed);
        if (!done)
            return fail(MinutesEditError(done.error()));
        one = std::move(changed);
        return after;
    }
    return fail(MinutesEditError(EditRefusal::noSuchMeeting));
}

} // namespace

MinutesEdited circulate_minutes(const Board& board, const Uuid& meeting_id, Instant now)
{
    return step_minutes(board, meeting_id, [&](Meeting& meeting) { return circulate(meeting.minutes, now); });
}

MinutesEdited approve_minutes(
    const Board& board, const Uuid& meeting_id, const MinutesApproval& approval, const Calendar& calendar)
{
    return step_minutes(board, meeting_id,
        [&](Meeting& meeting) { return approve(meeting.minutes, approval, meeting.date, calendar); });
}

MinutesEdited reopen_minutes(const Board& board, const Uuid& meeting_id, Instant now, std::string_view reason)
{
    return step_minutes(board, meeting_id, [&](Meeting& meeting) { return reopen(meeting.minutes, now, reason); });
}

std::string message(const MinutesEditError& error, Lang lang)
{
    if (const auto* refusal = std::get_if<EditRefusal>(&error))
        return std::string(message(*refusal, lang));
    return message(std::get<MinutesError>(error), lang);
}

} // namespace quillfern::board
