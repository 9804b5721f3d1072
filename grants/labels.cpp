#include "grants/labels.h"

#include <array>

namespace quillfern::grants {
namespace {

constexpr std::array stages = {
    Text{"Prospect", "Prospecto"},
    Text{"Letter of Inquiry", "Carta de consulta"},
    Text{"Drafting", "En redacción"},
    Text{"Submitted", "Enviada"},
    Text{"Awarded", "Otorgada"},
    Text{"Declined", "Rechazada"},
    Text{"Withdrawn", "Retirada"},
};

constexpr std::array funder_kinds = {
    Text{"Private foundation", "Fundación privada"},
    Text{"Community foundation", "Fundación comunitaria"},
    Text{"Corporate giving", "Donaciones corporativas"},
    Text{"Government", "Gobierno"},
    Text{"Faith-based", "Religiosa"},
    Text{"Other", "Otra"},
};

constexpr std::array date_anchors = {
    Text{"the LOI deadline", "el plazo de la carta de consulta"},
    Text{"the application deadline", "el plazo de la solicitud"},
    Text{"the decision date", "la fecha de decisión"},
    Text{"the award start", "el inicio de la subvención"},
    Text{"the award end", "el fin de la subvención"},
};

constexpr std::array report_frequencies = {
    Text{"Final report only", "Solo informe final"},
    Text{"Every year", "Cada año"},
    Text{"Every 6 months", "Cada 6 meses"},
    Text{"Every quarter", "Cada trimestre"},
    Text{"Every month", "Cada mes"},
};

constexpr std::array report_statuses = {
    Text{"Not started", "Sin empezar"},
    Text{"Drafting", "En redacción"},
    Text{"Submitted", "Enviado"},
};

constexpr std::array attachment_kinds = {
    Text{"Proposal", "Propuesta"},
    Text{"Award letter", "Carta de adjudicación"},
    Text{"Agreement", "Convenio de subvención"},
    Text{"Budget", "Presupuesto"},
    Text{"Report", "Informe"},
    Text{"Correspondence", "Correspondencia"},
    Text{"Other", "Otro"},
};

constexpr std::array person_roles = {
    Text{"Staff", "Personal"},
    Text{"Volunteer", "Voluntariado"},
    Text{"Program officer", "Oficial de programa"},
    Text{"Advisor", "Asesoría"},
    Text{"Other", "Otro"},
};

constexpr std::array agenda_kinds = {
    Text{"LOI due", "Vence la carta de consulta"},
    Text{"Application due", "Vence la solicitud"},
    Text{"Decision expected", "Decisión esperada"},
    Text{"Start report draft", "Empezar el borrador del informe"},
    Text{"Report due", "Vence el informe"},
    Text{"Payment expected", "Pago esperado"},
    Text{"Milestone", "Hito"},
};

constexpr std::array buckets = {
    Text{"Overdue", "Vencidos"},
    Text{"Next 7 days", "Próximos 7 días"},
    Text{"Next 30 days", "Próximos 30 días"},
    Text{"Next 90 days", "Próximos 90 días"},
    Text{"Later", "Más adelante"},
};

template <class Enum, std::size_t count>
std::string_view pick(const std::array<Text, count>& texts, Enum value, Lang lang)
{
    return texts[static_cast<std::size_t>(value)](lang);
}

template <class Enum>
constexpr std::size_t count_to(Enum last)
{
    return static_cast<std::size_t>(last) + 1;
}

static_assert(stages.size() == count_to(Stage::withdrawn));
static_assert(funder_kinds.size() == count_to(FunderKind::other));
static_assert(date_anchors.size() == count_to(DateAnchor::awardEnd));
static_assert(report_frequencies.size() == count_to(ReportFrequency::monthly));
static_assert(report_statuses.size() == count_to(ReportStatus::submitted));
static_assert(attachment_kinds.size() == count_to(AttachmentKind::other));
static_assert(person_roles.size() == count_to(PersonRole::other));
static_assert(agenda_kinds.size() == count_to(AgendaKind::milestone));
static_assert(buckets.size() == count_to(Bucket::later));

constexpr Text source_start = {"IRS Form 990-PF, tax year ", "Formulario 990-PF del IRS, año fiscal "};
constexpr Text source_end = {
    ", as filed; verify with the funder.", ", tal como se presentó; confírmelo con el financiador."};

} // namespace

std::string_view label(Stage stage, Lang lang)
{
    return pick(stages, stage, lang);
}

std::string_view label(FunderKind kind, Lang lang)
{
    return pick(funder_kinds, kind, lang);
}

std::string_view label(DateAnchor anchor, Lang lang)
{
    return pick(date_anchors, anchor, lang);
}

std::string_view label(ReportFrequency frequency, Lang lang)
{
    return pick(report_frequencies, frequency, lang);
}

std::string_view label(ReportStatus status, Lang lang)
{
    return pick(report_statuses, status, lang);
}

std::string_view label(AttachmentKind kind, Lang lang)
{
    return pick(attachment_kinds, kind, lang);
}

std::string_view label(PersonRole role, Lang lang)
{
    return pick(person_roles, role, lang);
}

std::string_view label(AgendaKind kind, Lang lang)
{
    return pick(agenda_kinds, kind, lang);
}

std::string_view label(Bucket bucket, Lang lang)
{
    return pick(buckets, bucket, lang);
}

std::string source_sentence(const FunderSource& source, Lang lang)
{
    const auto* filing = std::get_if<Irs990PFSource>(&source);
    if (!filing)
        return {};
    std::string sentence(source_start(lang));
    sentence += std::to_string(filing->taxYear);
    return sentence += source_end(lang);
}

} // namespace quillfern::grants
