#include "board/sample_boards.h"

namespace quillfern::board {
namespace {

constexpr std::uint32_t ines = 1, walter = 2, yuki = 3, bram = 4, adaeze = 5, sofia = 6, gideon = 7;

constexpr Text approve_meeting{
    "To approve the minutes of the {} meeting as distributed.", "Aprobar el acta del {} tal como se distribuyó."};
constexpr Text minutes_of{"Approve the minutes of {}", "Aprobar el acta del {}"};
constexpr Text darkroom{"To turn the storeroom into a darkroom.", "Convertir el depósito en cuarto oscuro."};

void people(SampleStory& story)
{
    story.member("Inés Valderrama", Role::president, "ines@tarnvalleyphoto.example");
    story.member("Walter Finch", Role::vicePresident, "walter@tarnvalleyphoto.example");
    story.member("Yuki Tanaka", Role::secretary, "yuki@tarnvalleyphoto.example");
    story.member("Bram de Vries", Role::treasurer, "bram@tarnvalleyphoto.example");
    story.member("Adaeze Obi", Role::director, "adaeze@tarnvalleyphoto.example");
    story.member("Sofía Lindqvist", Role::director, "sofia@tarnvalleyphoto.example");
    story.member("Gideon Marsh", Role::director, "gideon@tarnvalleyphoto.example");
    Member& former = story.member("Una Prescott", Role::other, "una@tarnvalleyphoto.example");
    former.title = story.text({"Former exhibitions chair", "Antigua responsable de exposiciones"});
    former.inOffice = false;
}

void first_half(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(2, 12, 1170))
        .held(2, 85)
        .all_present()
        .marked(AttendanceStatus::absent, {gideon})
        .item(AgendaSection::newBusiness, story.text({"Darkroom", "Cuarto oscuro"}), 25, adaeze)
        .motion(story.text(darkroom), adaeze, walter)
        .put_off(MotionStatus::tabled)
        .item(AgendaSection::newBusiness, story.text({"Dues", "Cuotas"}), 20, bram)
        .motion(story.text({"To raise the yearly dues to $60.", "Subir la cuota anual a $60."}), bram, yuki)
        .put_off(MotionStatus::withdrawn)
        .remark(story.text({"Withdrawn after the discussion.", "Retirada después del debate."}));
    SampleMeeting(story, MeetingKind::committee, story.at(4, 9, 1080))
        .held(0, 50)
        .about(story.text({"Spring exhibition", "Exposición de primavera"}))
        .marked(AttendanceStatus::present, {adaeze, sofia})
        .marked(AttendanceStatus::remote, {gideon})
        .item(AgendaSection::newBusiness, story.text({"Hanging plan", "Plan de montaje"}), 40, sofia)
        .motion(story.text({"To recommend the library hall for the exhibition.",
                    "Recomendar la sala de la biblioteca para la exposición."}),
            sofia, 0)
        .general_consent();
    SampleMeeting(story, MeetingKind::regular, story.at(5, 14, 1170))
        .held(3, 95)
        .all_present()
        .marked(AttendanceStatus::leftEarly, {bram})
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(2, 12)), 5, yuki)
        .approves(1)
        .motion(story.text(approve_meeting, story.date(2, 12)), yuki, walter)
        .counted(6, 0)
        .item(AgendaSection::oldBusiness, story.text({"Darkroom", "Cuarto oscuro"}), 20, adaeze)
        .carries_motion(1)
        .motion(story.text(darkroom), adaeze, sofia)
        .resumes(1)
        .roll_call({walter}, {gideon})
        .item(AgendaSection::newBusiness, story.text({"Honorary member", "Socia de honor"}), 10, ines)
        .motion(story.text({"To name Una Prescott an honorary member.", "Nombrar a Una Prescott socia de honor."}),
            ines, yuki)
        .decided_by(Threshold::unanimous, VoteBasis::votesCast)
        .counted(5, 1);
    story.approve_minutes(1, 3, story.board.meetings[2]->motions[0].number);
    story.reopen_minutes(1, story.at(5, 20, 600),
        story.text({"Sofía Lindqvist’s name was misspelled.", "El nombre de Sofía Lindqvist estaba mal escrito."}));
}

void second_half(SampleStory& story)
{
    SampleMeeting(story, MeetingKind::regular, story.at(8, 13, 1170))
        .held(10, 40)
        .marked(AttendanceStatus::present, {ines, yuki})
        .marked(AttendanceStatus::excused, {walter, bram, adaeze, sofia, gideon})
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(2, 12)), 5, yuki)
        .approves(1)
        .notes(story.text({"Approved as corrected; nobody objected.", "Aprobada con la corrección, sin objeción."}))
        .item(AgendaSection::newBusiness, story.text({"Lecture", "Conferencia"}), 10, ines)
        .motion(
            story.text({"To invite a lecturer on early prints.", "Invitar a una conferencia sobre copias antiguas."}),
            ines, yuki)
        .counted(2, 0)
        .remark(story.text({"Two of the three members that make a quorum were present.",
            "Estaban presentes dos de los tres miembros que forman quórum."}));
    story.approve_minutes(
        1, 4, story.text({"by general consent, as corrected", "por consentimiento general, con la corrección"}));
    story.send_minutes(3, story.at(6, 1, 600));
    SampleMeeting(story, MeetingKind::regular, story.at(9, 24, 1170))
        .item(AgendaSection::opening, story.text({"Call to order", "Apertura"}), 5, ines)
        .item(AgendaSection::minutes, story.text(minutes_of, story.date(5, 14)), 5, yuki)
        .approves(3)
        .item(AgendaSection::oldBusiness, story.text({"Enlarger for the darkroom", "Ampliadora para el cuarto oscuro"}),
            10, adaeze)
        .carries_action(1)
        .item(AgendaSection::newBusiness, story.text({"Autumn outing", "Salida de otoño"}), 15, walter)
        .item(AgendaSection::closing, story.text({"Adjournment", "Cierre"}), 5, ines);
    ActionItem& enlarger =
        story.action(story.text({"Find a used enlarger", "Buscar una ampliadora de segunda mano"}), adaeze, 3);
    enlarger.motionID = story.id(SampleRecord::motion, 5);
    enlarger.status = ActionStatus::inProgress;
    ActionItem& hall = story.action(story.text({"Book the library hall", "Reservar la sala de la biblioteca"}), 0, 2);
    hall.ownerName = "Una Prescott";
    hall.due = story.at(9, 30, 0);
}

} // namespace

void tell_club(SampleStory& story)
{
    Board& board = story.board;
    board.name = "Tarn Valley Photography Club";
    board.orgType = OrgType::club;
    board.bodyName = story.text({"Executive Committee", "Comité Ejecutivo"});
    board.quorum = FractionQuorum{1, 3};
    board.defaultLocation = story.text({"Studio above the bakery", "Estudio sobre la panadería"});
    board.defaultStartMinutes = 19 * 60 + 30;
    people(story);
    first_half(story);
    second_half(story);
}

} // namespace quillfern::board
