#include "board/sample_boards.h"

namespace quillfern::board {
namespace {

// The members' places in the list.
constexpr std::uint32_t ruth = 1, samuel = 2, helen = 3, victor = 4, anita = 5, carol = 6, joel = 7, mei_lin = 8,
                        thomas = 9, dale = 10, marguerite = 11;

constexpr Text call_to_order{"Call to order and welcome", "Apertura y bienvenida"};
constexpr Text treasurers_report{"Treasurer’s report", "Informe de tesorería"};
constexpr Text approve_regular{"To approve the minutes of the {} regular meeting as distributed.",
    "Aprobar el acta de la sesión ordinaria del {} tal como se distribuyó."};
constexpr Text minutes_of{"Approve the minutes of {}", "Aprobar el acta del {}"};
constexpr Text pickup_window{
    "To open a second Saturday pickup window.", "Abrir una segunda ventanilla de entrega los sábados."};
constexpr Text dock{"Loading dock repair", "Reparación del muelle de carga"};
constexpr Text by_general_consent{"by general consent", "por consentimiento general"};

void winter(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(1, 27, 1110))
        .held(3, 95)
        .all_present()
        .marked(AttendanceStatus::present, {marguerite})
        .item(AgendaSection::opening, story.text(call_to_order), 5, ruth)
        .item(AgendaSection::reports, story.text(treasurers_report), 15, victor)
        .notes(story.text({"Victor Pacheco reported the year’s opening balances.",
            "Victor Pacheco presentó los saldos de apertura del año."}))
        .item(AgendaSection::newBusiness, story.text({"Second Saturday pickup", "Segunda entrega de los sábados"}), 20,
            mei_lin)
        .motion(story.text(pickup_window), mei_lin, joel)
        .put_off(MotionStatus::tabled)
        .remark(story.text({"Until the volunteer count of the spring is known.",
            "Hasta conocer el número de voluntarios de la primavera."}));
    SampleMeeting(story, MeetingKind::regular, story.at(2, 24, 1110))
        .held(2, 80)
        .all_present()
        .marked(AttendanceStatus::excused, {thomas})
        .marked(AttendanceStatus::absent, {carol})
        .item(AgendaSection::opening, story.text(call_to_order), 5, ruth)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(1, 27)), 5, helen)
        .approves(1)
        .motion(story.text(approve_regular, story.date(1, 27)), helen, samuel)
        .counted(7, 0)
        .item(AgendaSection::newBusiness,
            story.text({"Senior Nutrition Partnership", "Alianza de Nutrición para Mayores"}), 15, marguerite)
        .motion(
            story.text({"To accept the award of $64,000 from the Kestrel County Department of Health for the Senior "
                        "Nutrition Partnership.",
                "Aceptar la subvención de $64,000 del Kestrel County Department of Health para la Alianza de "
                "Nutrición para Mayores."}),
            anita, joel)
        .counted(7, 0);
    story.approve_minutes(1, 2, story.board.meetings[1]->motions[0].number);
}

void spring(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::special, story.at(3, 24, 1110))
        .held(5, 40)
        .about(story.text(dock))
        .all_present()
        .marked(AttendanceStatus::remote, {anita, carol, joel})
        .marked(AttendanceStatus::absent, {samuel, thomas})
        .item(AgendaSection::opening, story.text(call_to_order), 5, ruth)
        .item(AgendaSection::newBusiness, story.text(dock), 30, joel)
        .notes(story.text({"The connection of three members was lost before the vote.",
            "Tres miembros perdieron la conexión antes de la votación."}))
        .motion(story.text({"To repair the loading dock at a cost of up to $9,200.",
                    "Reparar el muelle de carga por un costo máximo de $9,200."}),
            joel, victor)
        .counted_with(4, 4)
        .remark(story.text({"To be confirmed at the next meeting with a quorum.",
            "Pendiente de confirmación en la próxima sesión con quórum."}));
    SampleMeeting(story, MeetingKind::regular, story.at(4, 28, 1110))
        .held(4, 60)
        .all_present()
        .marked(AttendanceStatus::excused, {anita, mei_lin})
        .marked(AttendanceStatus::leftEarly, {joel})
        .item(AgendaSection::opening, story.text(call_to_order), 5, ruth)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(2, 24)), 5, helen)
        .approves(2)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(3, 24)), 5, helen)
        .approves(3)
        .motion(
            story.text({"To approve both minutes as distributed.", "Aprobar ambas actas tal como se distribuyeron."}),
            helen, victor)
        .counted(6, 0)
        .item(AgendaSection::reports, story.text(treasurers_report), 15, victor);
    const std::string number = story.board.meetings[3]->motions[0].number;
    story.approve_minutes(2, 4, number);
    story.approve_minutes(3, 4, number);
    SampleMeeting(story, MeetingKind::regular, story.at(5, 26, 1110))
        .held(1, 90)
        .all_present()
        .marked(AttendanceStatus::absent, {samuel})
        .marked(AttendanceStatus::present, {dale, marguerite})
        .item(AgendaSection::opening, story.text(dock), 5, ruth)
        .motion(story.text({"To confirm the vote of {} on the loading dock.",
                               "Confirmar la votación del {} sobre el muelle de carga."},
                    story.date(3, 24)),
            0, 0)
        .general_consent()
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(4, 28)), 5, helen)
        .approves(4)
        .motion(story.text(approve_regular, story.date(4, 28)), helen, victor)
        .counted(8, 0)
        .item(AgendaSection::oldBusiness, story.text(pickup_window), 20, mei_lin)
        .carries_motion(1)
        .motion(story.text(pickup_window), mei_lin, carol)
        .resumes(1)
        .roll_call({thomas}, {});
    story.approve_minutes(4, 5, story.board.meetings[4]->motions[1].number);
}

void annual_meeting(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::annual, story.at(6, 23, 1110))
        .held(6, 110)
        .all_present()
        .marked(AttendanceStatus::present, {dale, marguerite})
        .guests(story.text({"34 members of the association", "34 miembros de la asociación"}))
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(5, 26)), 5, helen)
        .approves(5)
        .motion(story.text(approve_regular, story.date(5, 26)), helen, joel)
        .counted(8, 0, 1)
        .item(AgendaSection::newBusiness, story.text({"Saint Brannoc application", "Solicitud a Saint Brannoc"}), 10,
            marguerite)
        .motion(story.text({"To apply to the Saint Brannoc Mission Fund.",
                    "Presentar una solicitud al Saint Brannoc Mission Fund."}),
            carol, thomas)
        .counted(8, 0)
        .item(AgendaSection::newBusiness, story.text({"Elections", "Elecciones"}), 15, ruth)
        .motion(story.text({"To elect Anita Ramaswamy and Joel Petrakis to three-year terms.",
                    "Elegir a Anita Ramaswamy y Joel Petrakis por tres años."}),
            ruth, helen)
        .counted(7, 0, 2)
        .item(AgendaSection::newBusiness, story.text({"Budget", "Presupuesto"}), 30, victor)
        .motion(story.text({"To accept the fiscal year {} budget of $612,400.",
                               "Aceptar el presupuesto de $612,400 del año fiscal {}."},
                    story.year(6, 30, 2027)),
            victor, mei_lin)
        .counted(8, 0);
    story.approve_minutes(5, 6, story.board.meetings[5]->motions[0].number);
}

void summer(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(7, 28, 1110))
        .held(2, 100)
        .all_present()
        .marked(AttendanceStatus::excused, {joel, mei_lin})
        .marked(AttendanceStatus::present, {marguerite})
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(6, 23)), 5, helen)
        .approves(6)
        .notes(
            story.text({"Approved as distributed; nobody objected.", "Aprobada tal como se distribuyó, sin objeción."}))
        .item(AgendaSection::newBusiness, story.text({"Winter distribution", "Distribución de invierno"}), 25, thomas)
        .motion(story.text({"To move the Saturday distribution to the armory for the winter.",
                    "Trasladar la distribución de los sábados a la armería durante el invierno."}),
            thomas, carol)
        .counted(3, 4)
        .item(AgendaSection::newBusiness,
            story.text({"Conflict-of-interest policy", "Política sobre conflictos de interés"}), 20, anita)
        .motion(story.text({"To adopt the conflict-of-interest policy as presented {}.",
                               "Adoptar la política sobre conflictos de interés presentada el {}."},
                    story.date(7, 28)),
            anita, thomas)
        .put_off(MotionStatus::tabled);
    story.send_minutes(6, story.at(7, 10, 600));
    story.approve_minutes(6, 7, story.text(by_general_consent));
    SampleMeeting(story, MeetingKind::regular, story.at(8, 25, 1110))
        .held(2, 92)
        .all_present()
        .marked(AttendanceStatus::remote, {anita})
        .marked(AttendanceStatus::excused, {thomas})
        .marked(AttendanceStatus::present, {marguerite})
        .guests(story.text({"Dana Whitlock; two volunteers", "Dana Whitlock; dos personas voluntarias"}))
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(7, 28)), 5, helen)
        .approves(7)
        .notes(story.text({"The minutes of July were sent to the board two weeks before. No corrections were offered.",
            "El acta de la sesión anterior se envió a la junta dos semanas antes. No hubo correcciones."}))
        .motion(story.text(approve_regular, story.date(7, 28)), helen, samuel)
        .counted(7, 0, 1)
        .item(AgendaSection::consent, story.text({"Director’s written report", "Informe escrito de la dirección"}), 5)
        .motion(story.text({"To adopt the consent agenda.", "Adoptar el orden del día por consentimiento."}), 0, 0)
        .general_consent()
        .item(AgendaSection::reports, story.text(treasurers_report), 15, victor)
        .notes(story.text({"Victor Pacheco reported $39,500 in award payments received since the fiscal year began.",
            "Victor Pacheco informó de $39,500 en pagos recibidos desde el inicio del año fiscal."}))
        .item(AgendaSection::reports, story.text({"Facilities", "Instalaciones"}), 10, joel)
        .notes(
            story.text({"Joel Petrakis reported that the walk-in freezer was serviced twice and recommended a yearly "
                        "contract.",
                "Joel Petrakis informó de dos reparaciones de la cámara frigorífica y recomendó un contrato anual."}))
        .item(AgendaSection::newBusiness, story.text({"Freezer maintenance", "Mantenimiento de la cámara"}), 15, joel)
        .motion(
            story.text({"To authorize a freezer maintenance contract with Coldwater Mechanical, not to exceed $4,800 "
                        "a year.",
                "Autorizar un contrato de mantenimiento de la cámara con Coldwater Mechanical por un máximo de "
                "$4,800 al año."}),
            joel, carol)
        .counted(7, 0, 0, 1);
    story.send_minutes(7, story.at(8, 11, 600));
    story.approve_minutes(7, 8, story.board.meetings[7]->motions[0].number);
}

void next_meeting(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(9, 22, 1110))
        .item(AgendaSection::opening, story.text(call_to_order), 5, ruth)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(8, 25)), 5, helen)
        .approves(8)
        .item(AgendaSection::consent, story.text({"Director’s written report", "Informe escrito de la dirección"}), 5)
        .item(AgendaSection::reports,
            story.text({"Treasurer’s report: the month’s financials", "Informe de tesorería: cuentas del mes"}), 15,
            victor)
        .item(AgendaSection::reports,
            story.text({"Grants report: what is due next", "Informe de subvenciones: próximos vencimientos"}), 10,
            marguerite)
        .item(AgendaSection::reports, story.text({"Facilities: walk-in freezer", "Instalaciones: cámara frigorífica"}),
            10, joel)
        .item(AgendaSection::oldBusiness,
            story.text({"Conflict-of-interest policy", "Política sobre conflictos de interés"}), 10, anita)
        .carries_motion(14)
        .item(AgendaSection::oldBusiness,
            story.text({"Property insurance quotes", "Cotizaciones del seguro del inmueble"}), 5, victor)
        .carries_action(3)
        .item(AgendaSection::newBusiness,
            story.text({"Refrigerated Van application", "Solicitud de la Furgoneta Refrigerada"}), 15, marguerite)
        .detail(
            story.text({"Capital round, decision {}. The van replaces the 2011 truck. Ask is the full price.",
                           "Ronda de inversión, decisión el {}. La furgoneta reemplaza el camión de 2011. Se solicita "
                           "el precio completo."},
                story.date(3, 31, 2027)))
        .item(AgendaSection::newBusiness,
            story.text({"Holiday hours and volunteer schedule", "Horario de fiestas y turnos de voluntariado"}), 10,
            samuel)
        .item(AgendaSection::openForum, story.text({"Community comments", "Comentarios de la comunidad"}), 5)
        .item(AgendaSection::executive,
            story.text({"Executive director’s annual review", "Evaluación anual de la dirección ejecutiva"}), 15, ruth)
        .item(AgendaSection::closing, story.text({"Next meeting, adjournment", "Próxima sesión y cierre"}), 5, ruth);
}

} // namespace

void tell_nonprofit_meetings(SampleStory& story)
{
    winter(story);
    spring(story);
    annual_meeting(story);
    summer(story);
    next_meeting(story);
}

} // namespace quillfern::board
