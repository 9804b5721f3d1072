#include "board/edits.h"

#include <algorithm>
#include <array>

namespace quillfern::board {
namespace {

constexpr std::array refusals = {
    Text{
        "This meeting isn’t in the board’s records any more.", "Esta reunión ya no está en los registros de la junta."},
    Text{"This agenda item isn’t on the agenda any more.", "Este punto ya no está en el orden del día."},
    Text{"This motion isn’t in the board’s records any more.", "Esta moción ya no está en los registros de la junta."},
    Text{"This action item isn’t in the board’s records any more.",
        "Esta tarea ya no está en los registros de la junta."},
    Text{"This member isn’t in the board’s records any more.", "Este miembro ya no está en los registros de la junta."},
    Text{"Another record has the same identifier.", "Otro registro tiene el mismo identificador."},
    Text{"These minutes were approved, so the meeting is locked. Reopen the minutes for a correction to change "
         "anything.",
        "El acta está aprobada y la reunión está bloqueada. Reabra el acta para corregirla antes de cambiar algo."},
    Text{"The meeting was already called to order.", "La sesión ya se abrió."},
    Text{"The meeting wasn’t called to order yet.", "La sesión aún no se ha abierto."},
    Text{"The meeting was already adjourned.", "La sesión ya se levantó."},
    Text{"A meeting can’t end before it starts.", "Una sesión no puede terminar antes de empezar."},
    Text{"Record the vote first.", "Registre antes la votación."},
    Text{"Only a postponed or tabled motion can be taken up again.",
        "Solo se puede retomar una moción aplazada o dejada sobre la mesa."},
    Text{"This motion was already taken up again.", "Esta moción ya se retomó."},
    Text{"A roll call counts this member’s vote. Mark the member as out of office instead.",
        "Una votación nominal cuenta el voto de este miembro. Indique mejor que ya no está en el cargo."},
};

} // namespace

std::string_view message(EditRefusal refusal, Lang lang)
{
    return refusals[static_cast<std::size_t>(refusal)](lang);
}

Edited change_meeting(
    const Board& board, const Uuid& meeting_id, const std::function<std::optional<EditRefusal>(Meeting&)>& change)
{
    const auto found = std::find_if(board.meetings.begin(), board.meetings.end(),
        [&](const Shared<Meeting>& meeting) { return meeting->id == meeting_id; });
    if (found == board.meetings.end())
        return fail(EditRefusal::noSuchMeeting);
    const Meeting& before = *found;
    if (is_locked(before))
        return fail(EditRefusal::minutesApproved);
    Meeting changed = before;
    if (const auto refusal = change(changed))
        return fail(*refusal);
    changed.id = before.id;
    changed.minutes = before.minutes;
    Board after = board;
    if (changed != before)
        after.meetings[static_cast<std::size_t>(found - board.meetings.begin())] = std::move(changed);
    return after;
}

} // namespace quillfern::board
