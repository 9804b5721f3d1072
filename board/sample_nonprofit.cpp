#include "board/sample_boards.h"

namespace quillfern::board {
namespace {

// The members' places in the list.
constexpr std::uint32_t ruth = 1, helen = 3, victor = 4, anita = 5, carol = 6, joel = 7, mei_lin = 8, marguerite = 11;

void people(SampleStory& story)
{
    const auto term = [&](Member& member, const char* phone, std::int64_t month, std::int64_t day, std::int64_t year) {
        member.phone = phone;
        member.termEnds = story.at(month, day, 0, year);
    };
    term(story.member("Ruth Abernathy", Role::president, "ruth.abernathy@post.example"), "(555) 010-0201", 6, 30, 2028);
    term(
        story.member("Samuel Oyelaran", Role::vicePresident, "s.oyelaran@post.example"), "(555) 010-0202", 6, 30, 2027);
    term(story.member("Helen Strand", Role::secretary, "helen@strandbooks.example"), "(555) 010-0203", 6, 30, 2028);
    term(story.member("Victor Pacheco", Role::treasurer, "vpacheco@pachecocpa.example"), "(555) 010-0204", 6, 30, 2027);
    term(story.member("Anita Ramaswamy", Role::director, "anita.r@post.example"), "(555) 010-0205", 6, 30, 2029);
    term(story.member("Carol Denholm", Role::director, "cdenholm@post.example"), "(555) 010-0206", 6, 30, 2027);
    term(story.member("Joel Petrakis", Role::director, "joel@petrakisbuild.example"), "(555) 010-0207", 6, 30, 2029);
    term(story.member("Mei-Lin Zhou", Role::director, "meilin.zhou@post.example"), "(555) 010-0208", 6, 30, 2028);
    term(story.member("Thomas Garrity", Role::director, "tgarrity@post.example"), "(555) 010-0209", 12, 31, 2026);
    story.member("Dale Emmerich", Role::exOfficio, "demmerich@lindenferry.example").title =
        story.text({"Town council liaison", "Enlace con el ayuntamiento"});
    story.member("Marguerite Okafor", Role::staff, "marguerite@lindenferrypantry.example").title =
        story.text({"Executive Director", "Directora ejecutiva"});
}

void open_actions(SampleStory& story)
{
    ActionItem& contract = story.action(
        story.text({"Sign the freezer maintenance contract", "Firmar el contrato de mantenimiento de la cámara"}), ruth,
        8);
    contract.due = story.at(9, 4, 0);
    contract.motionID = story.id(SampleRecord::motion, 17);
    ActionItem& policy = story.action(story.text({"Circulate the revised conflict-of-interest policy",
                                          "Distribuir la política revisada sobre conflictos de interés"}),
        anita, 7);
    policy.due = story.at(9, 15, 0);
    policy.motionID = story.id(SampleRecord::motion, 14);
    ActionItem& quotes = story.action(
        story.text({"Get three quotes for the property insurance", "Pedir tres cotizaciones del seguro del inmueble"}),
        victor, 8);
    quotes.due = story.at(9, 18, 0);
    quotes.status = ActionStatus::inProgress;
    story
        .action(
            story.text({"Update the bank signature cards", "Actualizar las firmas autorizadas del banco"}), helen, 6)
        .due = story.at(9, 22, 0);
    story
        .action(story.text({"Invite the Tessaly program officer to the October meeting",
                    "Invitar a la responsable de programas de Tessaly a la próxima sesión"}),
            marguerite, 8)
        .due = story.at(10, 1, 0);
    ActionItem& candidates = story.action(story.text({"Recruit two candidates for the finance committee",
                                              "Buscar dos candidaturas para el comité de finanzas"}),
        carol, 7);
    candidates.due = story.at(10, 20, 0);
    candidates.status = ActionStatus::inProgress;
    story.action(story.text({"Write a volunteer safety checklist for the loading dock",
                     "Redactar una lista de seguridad del muelle de carga para el voluntariado"}),
        joel, 8);
}

void finished_actions(SampleStory& story)
{
    const auto finish = [](ActionItem& action, Instant due, Instant completed) {
        action.due = due;
        action.status = ActionStatus::done;
        action.completed = completed;
    };
    finish(
        story.action(story.text({"Renew the county food handler permit", "Renovar el permiso sanitario del condado"}),
            mei_lin, 7),
        story.at(8, 31, 0), story.at(8, 20, 600));
    finish(story.action(story.text({"Send thank-you letters to the July donors",
                            "Enviar cartas de agradecimiento a los donantes de julio"}),
               carol, 7),
        story.at(8, 15, 0), story.at(8, 12, 600));
}

} // namespace

void tell_nonprofit(SampleStory& story)
{
    Board& board = story.board;
    board.name = "Linden Ferry Community Pantry";
    board.orgType = OrgType::nonprofit;
    board.bodyName = story.text({"Board of Directors", "Junta Directiva"});
    board.address = "212 Ferry Street, Linden Ferry, Ohio 44099";
    board.defaultLocation = story.text({"Pantry meeting room", "Sala de reuniones de la despensa"});
    board.defaultStartMinutes = 18 * 60 + 30;
    board.defaultLengthMinutes = 120;
    people(story);
    tell_nonprofit_meetings(story);
    open_actions(story);
    finished_actions(story);
}

} // namespace quillfern::board
