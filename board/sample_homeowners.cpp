#include "board/sample_boards.h"

namespace quillfern::board {
namespace {

constexpr std::uint32_t patrice = 1, owen = 2, rosa = 3, karim = 4, lucille = 5, manager = 6;

constexpr Text approve_meeting{
    "To approve the minutes of the {} meeting as distributed.", "Aprobar el acta del {} tal como se distribuyó."};
constexpr Text minutes_of{"Approve the minutes of {}", "Aprobar el acta del {}"};
constexpr Text roofs{"To replace the roofs of buildings 3 and 4 by a special assessment of $1,150 a unit.",
    "Reemplazar los techos de los edificios 3 y 4 con una cuota extraordinaria de $1,150 por unidad."};

void people(SampleStory& story)
{
    story.member("Patrice Langlois", Role::president, "patrice@junipercourt.example").termEnds =
        story.at(3, 31, 0, 2028);
    story.member("Owen Castellano", Role::vicePresident, "owen@junipercourt.example").termEnds =
        story.at(3, 31, 0, 2027);
    story.member("Rosa Delacroix", Role::secretary, "rosa@junipercourt.example").termEnds = story.at(3, 31, 0, 2027);
    story.member("Karim Haddad", Role::treasurer, "karim@junipercourt.example").termEnds = story.at(3, 31, 0, 2028);
    story.member("Lucille Brandt", Role::director, "lucille@junipercourt.example").termEnds = story.at(3, 31, 0, 2027);
    story.member("Nolan Weatherby", Role::staff, "office@junipercourt.example").title =
        story.text({"Property manager", "Administrador de la propiedad"});
}

void annual_meeting(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::annual, story.at(3, 18, 1140))
        .held(5, 100)
        .all_present()
        .marked(AttendanceStatus::present, {manager})
        .guests(story.text({"41 homeowners", "41 propietarios"}))
        .item(AgendaSection::reports, story.text({"Annual report", "Memoria anual"}), 20, patrice)
        .notes(story.text({"Patrice Langlois reviewed the year: 96 units, two sales, reserves at 61%.",
            "Patrice Langlois repasó el año: 96 unidades, dos ventas, reservas al 61 %."}))
        .item(AgendaSection::newBusiness, story.text({"Election", "Elección"}), 15, rosa)
        .motion(story.text({"To seat Patrice Langlois and Karim Haddad for two years.",
                    "Nombrar a Patrice Langlois y Karim Haddad por dos años."}),
            rosa, lucille)
        .counted(3, 0, 0, 2)
        .item(AgendaSection::newBusiness, story.text({"Parking", "Estacionamiento"}), 20, owen)
        .motion(
            story.text({"To number the guest parking spaces.", "Numerar las plazas de estacionamiento para visitas."}),
            owen, karim)
        .counted(5, 0);
}

void spring_and_summer(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(5, 20, 1140))
        .held(0, 75)
        .all_present()
        .marked(AttendanceStatus::present, {manager})
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(3, 18)), 5, rosa)
        .approves(1)
        .motion(story.text(approve_meeting, story.date(3, 18)), rosa, owen)
        .counted(5, 0)
        .item(AgendaSection::newBusiness, story.text({"Roofs", "Techos"}), 40, karim)
        .notes(story.text({"Three bids were read. Homeowners asked for a payment plan.",
            "Se leyeron tres ofertas. Los propietarios pidieron un plan de pagos."}))
        .motion(story.text(roofs), karim, patrice)
        .decided_by(Threshold::twoThirds, VoteBasis::entireBoard)
        .roll_call({owen}, {lucille})
        .motion(story.text({"To ask the manager for a payment plan over three years.",
                    "Pedir al administrador un plan de pagos a tres años."}),
            lucille, owen)
        .put_off(MotionStatus::postponed);
    story.approve_minutes(1, 2, story.board.meetings[1]->motions[0].number);
    SampleMeeting(story, MeetingKind::special, story.at(7, 8, 1140))
        .held(20, 25)
        .about(story.text({"Storm damage to the clubhouse", "Daños de la tormenta en la casa club"}))
        .marked(AttendanceStatus::present, {patrice, rosa, manager})
        .marked(AttendanceStatus::absent, {owen, karim})
        .marked(AttendanceStatus::excused, {lucille})
        .item(AgendaSection::newBusiness,
            story.text({"Storm damage to the clubhouse", "Daños de la tormenta en la casa club"}), 20, patrice)
        .motion(
            story.text({"To have the broken windows boarded up at once.", "Tapar de inmediato las ventanas rotas."}),
            patrice, rosa)
        .counted(2, 0);
    SampleMeeting(story, MeetingKind::regular, story.at(8, 19, 1140))
        .held(4, 70)
        .all_present()
        .marked(AttendanceStatus::remote, {lucille})
        .marked(AttendanceStatus::present, {manager})
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(5, 20)), 5, rosa)
        .approves(2)
        .motion(story.text(approve_meeting, story.date(5, 20)), rosa, karim)
        .counted(4, 0, 1)
        .item(AgendaSection::oldBusiness, story.text({"Payment plan", "Plan de pagos"}), 15, lucille)
        .carries_motion(5)
        .motion(story.text({"To offer a payment plan over three years for any special assessment.",
                    "Ofrecer un plan de pagos a tres años para toda cuota extraordinaria."}),
            lucille, owen)
        .resumes(5)
        .general_consent()
        .item(AgendaSection::executive, story.text({"Delinquent accounts", "Cuentas en mora"}), 15, karim);
    story.approve_minutes(2, 4, story.board.meetings[3]->motions[0].number);
    story.reopen_minutes(2, story.at(8, 27, 600),
        story.text({"The second bid was recorded under the wrong name.",
            "La segunda oferta se anotó con un nombre equivocado."}));
    story.send_minutes(3, story.at(7, 15, 600));
}

void next_meeting_and_actions(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(9, 16, 1140))
        .item(AgendaSection::opening, story.text({"Call to order", "Apertura"}), 5, patrice)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(5, 20)), 5, rosa)
        .approves(2)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(7, 8)), 5, rosa)
        .approves(3)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(8, 19)), 5, rosa)
        .approves(4)
        .item(AgendaSection::oldBusiness, story.text({"New bid for the roofs", "Nueva oferta para los techos"}), 20,
            karim)
        .carries_action(1)
        .item(AgendaSection::openForum, story.text({"Homeowners’ forum", "Foro de propietarios"}), 15)
        .item(AgendaSection::closing, story.text({"Adjournment", "Cierre"}), 5, patrice);
    story.action(story.text({"Get a new bid for the roofs", "Pedir una nueva oferta para los techos"}), karim, 4).due =
        story.at(9, 14, 0);
    ActionItem& windows =
        story.action(story.text({"Claim the windows from the insurer", "Reclamar las ventanas al seguro"}), manager, 3);
    windows.motionID = story.id(SampleRecord::motion, 6);
    windows.status = ActionStatus::done;
    windows.completed = story.at(8, 3, 600);
    story.action(story.text({"Ask the town about the drain", "Consultar al municipio por el desagüe"}), owen, 1)
        .status = ActionStatus::dropped;
}

} // namespace

void tell_homeowners(SampleStory& story)
{
    Board& board = story.board;
    board.name = "Juniper Court Homeowners Association";
    board.orgType = OrgType::hoa;
    board.address = "Juniper Court, Tarn Lake, Ohio 44098";
    board.motionPrefix = "HOA-";
    board.seats = 5;
    board.quorum = FixedQuorum{3};
    board.voteRule = {Threshold::majority, VoteBasis::present};
    board.defaultLocation = story.text({"Clubhouse", "Casa club"});
    people(story);
    annual_meeting(story);
    spring_and_summer(story);
    next_meeting_and_actions(story);
}

} // namespace quillfern::board
