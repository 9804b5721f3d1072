#include "grants/template_samples.h"

namespace quillfern::grants {

namespace {

constexpr Text arts_title{"After-school arts program", "Programa de arte después de clases"};
constexpr Text arts_funder{"Juniper Hollow Foundation", "Fundación Valle del Enebro"};
constexpr Text arts_program{"Arts education", "Educación artística"};
constexpr Text arts_notes{"Two payments: half at the start, half after the midyear report.",
    "Dos pagos: la mitad al inicio y la mitad después del informe de medio año."};

constexpr Text pantry_title{"Pantry cold storage", "Refrigeración para la despensa"};
constexpr Text pantry_funder{"Lantern Street Community Fund", "Fondo Comunitario Calle del Farol"};
constexpr Text pantry_program{"Food access", "Acceso a alimentos"};
constexpr Text pantry_notes{
    "A walk-in cooler, shelving and installation.", "Una cámara frigorífica, estantes e instalación."};

// The ids name nothing outside the template; they only tie the samples' grants to their funders.
constexpr Uuid sample_id(std::uint8_t number)
{
    Uuid id;
    id.bytes.back() = number;
    return id;
}

Funder funder(std::uint8_t number, const Text& name, FunderKind kind, Lang lang)
{
    Funder funder;
    funder.id = sample_id(number);
    funder.name = name(lang);
    funder.kind = kind;
    return funder;
}

Payment payment(std::uint8_t number, Day expected, Money amount)
{
    Payment payment;
    payment.id = sample_id(number);
    payment.expected = expected;
    payment.amount = amount;
    return payment;
}

Grant arts_grant(const Funder& funder, Lang lang)
{
    Grant grant;
    grant.id = sample_id(3);
    grant.title = arts_title(lang);
    grant.funderID = funder.id;
    grant.stage = Stage::awarded;
    grant.program = arts_program(lang);
    grant.owner = "Maya Ortiz";
    grant.ask = Money::from_units(25000);
    grant.awarded = Money::from_units(20000);
    grant.loiDue = Day{2027, 1, 15};
    grant.applicationDue = Day{2027, 3, 1};
    grant.submittedOn = Day{2027, 2, 26};
    grant.decisionExpected = Day{2027, 5, 15};
    grant.decidedOn = Day{2027, 5, 12};
    grant.awardStart = Day{2027, 7, 1};
    grant.awardEnd = Day{2028, 6, 30};
    grant.payments = {
        payment(4, Day{2027, 7, 15}, Money::from_units(10000)), payment(5, Day{2028, 2, 15}, Money::from_units(10000))};
    ReportPeriod& report = grant.reports.emplace_back();
    report.id = sample_id(6);
    report.due = Day{2028, 1, 30};
    grant.notes = arts_notes(lang);
    return grant;
}

Grant pantry_grant(const Funder& funder, Lang lang)
{
    Grant grant;
    grant.id = sample_id(7);
    grant.title = pantry_title(lang);
    grant.funderID = funder.id;
    grant.stage = Stage::submitted;
    grant.program = pantry_program(lang);
    grant.owner = "Daniel Reyes";
    grant.ask = Money{1875050};
    grant.probability = 60;
    grant.applicationDue = Day{2027, 4, 15};
    grant.submittedOn = Day{2027, 4, 10};
    grant.decisionExpected = Day{2027, 7, 31};
    grant.notes = pantry_notes(lang);
    return grant;
}

} // namespace

GrantFile template_samples(Lang lang)
{
    const Funder juniper = funder(1, arts_funder, FunderKind::privateFoundation, lang);
    const Funder lantern = funder(2, pantry_funder, FunderKind::communityFoundation, lang);
    GrantFile file;
    file.funders = {juniper, lantern};
    file.grants = {arts_grant(juniper, lang), pantry_grant(lantern, lang)};
    return file;
}

} // namespace quillfern::grants
