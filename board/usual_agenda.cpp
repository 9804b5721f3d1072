#include "board/usual_agenda.h"

#include "base/trim.h"

#include <span>

namespace quillfern::board {
namespace {

struct UsualItem {
    AgendaSection section;
    Text title;
    std::int64_t minutes;
};

constexpr UsualItem opening{AgendaSection::opening, {"Call to order and welcome", "Apertura y bienvenida"}, 5};
constexpr UsualItem treasurer{AgendaSection::reports, {"Treasurer’s report", "Informe de tesorería"}, 15};
constexpr UsualItem officers{
    AgendaSection::reports, {"Officer and committee reports", "Informes de cargos y comités"}, 10};
constexpr UsualItem forum{AgendaSection::openForum, {"Comments and questions", "Comentarios y preguntas"}, 5};
constexpr UsualItem closing{AgendaSection::closing, {"Next meeting, adjournment", "Próxima sesión y cierre"}, 5};

constexpr UsualItem regular[] = {opening, treasurer, officers, forum, closing};
constexpr UsualItem special[] = {
    opening, {AgendaSection::newBusiness, {"Purpose of the meeting", "Objeto de la sesión"}, 30}, closing};
constexpr UsualItem annual[] = {opening, {AgendaSection::reports, {"Annual report", "Memoria anual"}, 15}, treasurer,
    {AgendaSection::newBusiness, {"Elections", "Elecciones"}, 15}, forum, closing};
constexpr UsualItem committee[] = {
    opening, {AgendaSection::newBusiness, {"Work of the committee", "Trabajo del comité"}, 30}, closing};

std::span<const UsualItem> items_of(MeetingKind kind)
{
    switch (kind) {
    case MeetingKind::regular:
        return regular;
    case MeetingKind::special:
        return special;
    case MeetingKind::annual:
        return annual;
    case MeetingKind::committee:
        break;
    }
    return committee;
}

} // namespace

std::vector<AgendaItem> usual_agenda(MeetingKind kind, const std::string& purpose, const NewId& new_id, Lang lang)
{
    const std::string_view stated = trimmed(purpose);
    std::vector<AgendaItem> agenda;
    for (const UsualItem& usual : items_of(kind)) {
        AgendaItem& item = agenda.emplace_back();
        item.id = new_id();
        item.section = usual.section;
        item.title = usual.title(lang);
        item.minutes = usual.minutes;
        if (kind == MeetingKind::special && usual.section == AgendaSection::newBusiness && !stated.empty())
            item.title = stated;
    }
    return agenda;
}

} // namespace quillfern::board
