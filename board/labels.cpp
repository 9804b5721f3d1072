#include "board/labels.h"

#include <array>

namespace quillfern::board {
namespace {

constexpr std::array roles = {
    Text{"President (chair)", "Presidencia"},
    Text{"Vice president", "Vicepresidencia"},
    Text{"Secretary", "Secretaría"},
    Text{"Treasurer", "Tesorería"},
    Text{"Director", "Vocal"},
    Text{"Ex officio (non-voting)", "Ex officio (sin voto)"},
    Text{"Staff or manager", "Personal o administración"},
    Text{"Other", "Otro cargo"},
};

constexpr std::array org_types = {
    Text{"Nonprofit", "Organización sin fines de lucro"},
    Text{"Homeowners or condo association", "Asociación de propietarios o condominio"},
    Text{"Club or society", "Club o sociedad"},
    Text{"Other organization", "Otra organización"},
};

constexpr std::array meeting_kinds = {
    Text{"Regular meeting", "Sesión ordinaria"},
    Text{"Special meeting", "Sesión extraordinaria"},
    Text{"Annual meeting of members", "Asamblea anual de miembros"},
    Text{"Committee meeting", "Reunión de comité"},
};

constexpr std::array attendance_statuses = {
    Text{"Present", "Presente"},
    Text{"Present remotely", "Presente a distancia"},
    Text{"Absent", "Ausente"},
    Text{"Excused", "Ausencia justificada"},
    Text{"Left early", "Se retiró antes"},
};

constexpr std::array agenda_sections = {
    Text{"Opening", "Apertura"},
    Text{"Minutes", "Actas"},
    Text{"Consent agenda", "Orden del día por consentimiento"},
    Text{"Reports", "Informes"},
    Text{"Old business", "Asuntos pendientes"},
    Text{"New business", "Asuntos nuevos"},
    Text{"Open forum", "Foro abierto"},
    Text{"Executive session", "Sesión ejecutiva"},
    Text{"Closing", "Cierre"},
};

constexpr std::array motion_statuses = {
    Text{"On the floor", "En debate"},
    Text{"Voted", "Votada"},
    Text{"Withdrawn", "Retirada"},
    Text{"Postponed", "Aplazada"},
    Text{"Tabled", "Dejada sobre la mesa"},
};

constexpr std::array action_statuses = {
    Text{"Open", "Pendiente"},
    Text{"In progress", "En curso"},
    Text{"Done", "Hecha"},
    Text{"Dropped", "Descartada"},
};

constexpr std::array thresholds = {
    Text{"Majority", "Mayoría"},
    Text{"Two-thirds", "Dos tercios"},
    Text{"Unanimous", "Unanimidad"},
};

constexpr std::array vote_bases = {
    Text{"of votes cast", "de los votos emitidos"},
    Text{"of members present", "de los miembros presentes"},
    Text{"of the entire board", "de toda la junta"},
};

constexpr std::array vote_choices = {
    Text{"Aye", "Sí"},
    Text{"Nay", "No"},
    Text{"Abstain", "Abstención"},
    Text{"Recused", "Inhibición"},
    Text{"Absent", "Ausente"},
};

constexpr std::array vote_methods = {
    Text{"Counted", "Con recuento"},
    Text{"Roll call", "Nominal"},
    Text{"General consent", "Consentimiento general"},
};

constexpr std::array outcomes = {
    Text{"Carried", "Aprobada"},
    Text{"Failed", "Rechazada"},
};

constexpr std::array vote_warnings = {
    Text{"There was no quorum when the vote was taken.", "No había quórum cuando se votó."},
    Text{"More votes are recorded than voting members were present.",
        "Constan más votos que miembros con voto presentes."},
    Text{"Nobody voted in favor or against.", "Nadie votó a favor ni en contra."},
};

constexpr std::array minutes_states = {
    Text{"Draft", "Borrador"},
    Text{"Sent for approval", "Enviada para aprobación"},
    Text{"Approved", "Aprobada"},
};

constexpr std::array quorum_rules = {
    Text{"Share of the seats", "Fracción de los puestos"},
    Text{"Fixed number", "Número fijo"},
    Text{"Majority of the seats", "Mayoría de los puestos"},
};

constexpr Text in_favor{" in favor", " a favor"};
constexpr Text opposed{" opposed", " en contra"};
constexpr Text abstaining{" abstaining", " abstenciones"};
constexpr Text recused{" recused", " inhibidos"};

template <class Case>
std::string_view text_of(const auto& table, Case value, Lang lang)
{
    return table[static_cast<std::size_t>(value)](lang);
}

} // namespace

std::string_view label(Role role, Lang lang)
{
    return text_of(roles, role, lang);
}
std::string_view label(OrgType type, Lang lang)
{
    return text_of(org_types, type, lang);
}
std::string_view label(MeetingKind kind, Lang lang)
{
    return text_of(meeting_kinds, kind, lang);
}
std::string_view label(AttendanceStatus status, Lang lang)
{
    return text_of(attendance_statuses, status, lang);
}
std::string_view label(AgendaSection section, Lang lang)
{
    return text_of(agenda_sections, section, lang);
}
std::string_view label(MotionStatus status, Lang lang)
{
    return text_of(motion_statuses, status, lang);
}
std::string_view label(ActionStatus status, Lang lang)
{
    return text_of(action_statuses, status, lang);
}
std::string_view label(Threshold threshold, Lang lang)
{
    return text_of(thresholds, threshold, lang);
}
std::string_view label(VoteBasis basis, Lang lang)
{
    return text_of(vote_bases, basis, lang);
}
std::string_view label(VoteChoice choice, Lang lang)
{
    return text_of(vote_choices, choice, lang);
}
std::string_view label(VoteMethod method, Lang lang)
{
    return text_of(vote_methods, method, lang);
}
std::string_view label(Outcome outcome, Lang lang)
{
    return text_of(outcomes, outcome, lang);
}
std::string_view label(VoteWarning warning, Lang lang)
{
    return text_of(vote_warnings, warning, lang);
}
std::string_view label(MinutesState state, Lang lang)
{
    return text_of(minutes_states, state, lang);
}
std::string_view label(const QuorumRule& rule, Lang lang)
{
    return text_of(quorum_rules, rule.index(), lang);
}

std::string rule_label(const VoteRule& rule, Lang lang)
{
    return std::string(label(rule.threshold, lang)).append(" ").append(label(rule.basis, lang));
}

std::string tally_sentence(const Tally& tally, Lang lang)
{
    std::string sentence = std::to_string(tally.ayes).append(in_favor(lang));
    const auto add = [&](std::int64_t count, const Text& phrase) {
        sentence.append(", ").append(std::to_string(count)).append(phrase(lang));
    };
    add(tally.nays, opposed);
    if (tally.abstentions >= 1)
        add(tally.abstentions, abstaining);
    if (tally.recusals >= 1)
        add(tally.recusals, recused);
    return sentence;
}

} // namespace quillfern::board
