#include "grants/sample_grant.h"

#include "platform/locale_text.h"

#include <array>

namespace quillfern::grants {
namespace {

struct FunderRow {
    std::string_view name;
    FunderKind kind;
    std::string_view site;
    std::string_view contact;
    std::string_view email;
    std::string_view phone;
    std::string_view address;
    std::string_view ein;
    std::int64_t filing_year; ///< of the Form 990-PF; 0: typed in
    Text focus;
    Text cycle;
    Text notes;
};

/// In the order of SampleFunder.
constexpr std::array funders = {
    FunderRow{"Holloway Credit Union", FunderKind::corporate, "hollowaycu.example", "Renée Holloway-Ortiz",
        "giving@hollowaycu.example", "(555) 010-0172", "40 Market Square, Linden Ferry, Ohio 44099", "", 0,
        {"Volunteering, household finances", "Voluntariado, finanzas familiares"},
        {"Applications by the middle of May and of January", "Solicitudes a mediados de mayo y de enero"},
        {"Likes a photograph with each report.", "Agradece una fotografía con cada informe."}},
    FunderRow{"Kestrel County Community Foundation", FunderKind::communityFoundation, "kestrelcf.example",
        "Nadia Bergström", "nbergstrom@kestrelcf.example", "(555) 010-0117", "8 Courthouse Lane, Kestrel, Ohio 44098",
        "00-3320918", 0, {"Children, schools, neighborhoods", "Infancia, escuelas, barrios"},
        {"One round a year, closing July 31", "Una convocatoria al año, hasta el 31 de julio"},
        {"Site visits in May.", "Visitas en mayo."}},
    FunderRow{"Kestrel County Department of Health", FunderKind::government, "kestrelcounty.example", "Owen Tillery",
        "otillery@kestrelcounty.example", "(555) 010-0133", "100 County Road 5, Kestrel, Ohio 44098", "", 0,
        {"Older adults, nutrition", "Personas mayores, nutrición"},
        {"Calls for proposals in September", "Convocatorias en septiembre"},
        {"Pays after each accepted report.", "Paga tras cada informe aceptado."}},
    FunderRow{"Marlowe & Finch Grocers", FunderKind::corporate, "marlowefinch.example", "Celia Finch",
        "community@marlowefinch.example", "(555) 010-0161", "2200 Orchard Pike, Linden Ferry, Ohio 44099", "", 0,
        {"Cold storage, food rescue", "Cadena de frío, rescate de alimentos"},
        {"Any time; decisions each quarter", "En cualquier momento; decide cada trimestre"},
        {"Also gives us the Saturday surplus.", "También nos entrega el excedente del sábado."}},
    FunderRow{"Ostrander Family Foundation", FunderKind::privateFoundation, "ostranderfamily.example",
        "Judith Ostrander", "grants@ostranderfamily.example", "(555) 010-0155",
        "P.O. Box 77, Marlow Springs, Ohio 44097", "00-7714302", 2024,
        {"Older adults, rural access", "Personas mayores, acceso rural"},
        {"full application by invitation", "solicitud completa por invitación"},
        {"One page, large type.", "Una página, letra grande."}},
    FunderRow{"Saint Brannoc Mission Fund", FunderKind::faithBased, "saintbrannoc.example", "Siobhán Ó Dálaigh",
        "mission@saintbrannoc.example", "(555) 010-0188", "1 Chapel Hill, Linden Ferry, Ohio 44099", "", 0,
        {"Emergency food", "Alimentos de emergencia"},
        {"The committee meets in the first week of August", "El comité se reúne la primera semana de agosto"},
        {"Receipts only.", "Solo con recibos."}},
    FunderRow{"State Office of Food Access", FunderKind::government, "foodaccess.example", "Tuấn Nguyễn",
        "tnguyen@foodaccess.example", "(555) 010-0199", "30 Statehouse Walk, Alder Falls, Ohio 44095", "", 0,
        {"Transport, cold chain", "Transporte, cadena de frío"},
        {"Letter in August, application in October", "Carta en agosto, solicitud en octubre"},
        {"Needs a board resolution with the application.", "Exige un acuerdo de la junta con la solicitud."}},
    FunderRow{"Tessaly Health Trust", FunderKind::privateFoundation, "tessalytrust.example", "Priya Raman",
        "praman@tessalytrust.example", "(555) 010-0109", "500 Tessaly Avenue, Harrow Lake, Ohio 44094", "00-5108846",
        2024, {"Health, mobile services", "Salud, servicios móviles"},
        {"Letters in winter and spring, applications by invitation",
            "Cartas en invierno y primavera, solicitudes por invitación"},
        {"Priya reads drafts gladly.", "Priya lee borradores con gusto."}},
    FunderRow{"The Pemberwick Fund", FunderKind::privateFoundation, "pemberwick.example", "Łucja Pemberwick",
        "office@pemberwick.example", "(555) 010-0126", "14 Elm Terrace, Pember, Ohio 44093", "00-2297403", 2023,
        {"Gardens, youth, general support", "Huertos, juventud, apoyo general"},
        {"Letters by November 20, applications by February 1",
            "Cartas hasta el 20 de noviembre, solicitudes hasta el 1 de febrero"},
        {"No award yet, three conversations.", "Aún sin subvención, tres conversaciones."}},
};

/// Ostrander's cycle names the day of its letter, which moves with the story.
std::string cycle(const SampleFrame& frame, SampleFunder funder)
{
    std::string words = frame.text(funders[static_cast<std::size_t>(funder)].cycle);
    if (funder != SampleFunder::ostrander)
        return words;
    const std::string day =
        platform::format_date_fields(frame.on(2026, 9, 17).days_since_epoch(), "MMMMd", frame.lang());
    return frame.text({"Letter of inquiry by ", "Carta de consulta hasta el "}) + day + "; " + words;
}

Funder funder_of(const SampleFrame& frame, SampleFunder which)
{
    const auto number = static_cast<std::uint32_t>(which);
    const FunderRow& row = funders[number];
    Funder funder;
    funder.id = sample_id(SampleKind::funder, number);
    funder.name = row.name;
    funder.kind = row.kind;
    funder.website = row.site;
    funder.contactName = row.contact;
    funder.contactEmail = row.email;
    funder.contactPhone = row.phone;
    funder.address = row.address;
    funder.focus = frame.text(row.focus);
    funder.cycle = cycle(frame, which);
    funder.notes = frame.text(row.notes);
    funder.ein = row.ein;
    if (row.filing_year != 0)
        funder.source = Irs990PFSource{row.filing_year, funder.ein};
    return funder;
}

struct PersonRow {
    std::string_view name;
    PersonRole role;
    Text title;
    std::string_view email;
    std::string_view phone;
    std::optional<SampleFunder> funder;
    Text notes;
};

constexpr std::array people = {
    PersonRow{marguerite, PersonRole::staff, {"Executive Director", "Directora ejecutiva"},
        "marguerite@lindenferrypantry.example", "(555) 010-0142", {},
        {"Signs every application.", "Firma todas las solicitudes."}},
    PersonRow{dana, PersonRole::staff, {"Grants Manager", "Gerente de subvenciones"}, "dana@lindenferrypantry.example",
        "(555) 010-0143", {}, {"Away on Friday afternoons.", "Ausente los viernes por la tarde."}},
    PersonRow{luis, PersonRole::staff, {"Programs Director", "Director de programas"}, "luis@lindenferrypantry.example",
        "(555) 010-0144", {}, {"Has the keys to both trucks.", "Tiene las llaves de los dos camiones."}},
    PersonRow{"Celia Finch", PersonRole::programOfficer, {"Community Affairs", "Relaciones con la comunidad"},
        "community@marlowefinch.example", "(555) 010-0161", SampleFunder::marlowe,
        {"Decides with her brother.", "Decide con su hermano."}},
    PersonRow{"Nadia Bergström", PersonRole::programOfficer, {"Program Officer", "Oficial de programa"},
        "nbergstrom@kestrelcf.example", "(555) 010-0117", SampleFunder::kestrelFoundation,
        {"Visited the backpack packing in May.", "Visitó la preparación de mochilas en mayo."}},
    PersonRow{"Owen Tillery", PersonRole::programOfficer,
        {"Aging Services Program Officer", "Oficial de servicios para mayores"}, "otillery@kestrelcounty.example",
        "(555) 010-0133", SampleFunder::kestrelHealth,
        {"Prefers a call before any budget change. Out of the office the last week of every quarter; his deputy is "
         "Lena Ford.",
            "Prefiere una llamada antes de cualquier cambio de presupuesto. Fuera de la oficina la última semana de "
            "cada "
            "trimestre; lo suple Lena Ford."}},
    PersonRow{"Priya Raman", PersonRole::programOfficer, {"Senior Program Officer", "Oficial principal de programa"},
        "praman@tessalytrust.example", "(555) 010-0109", SampleFunder::tessaly,
        {"Bring the route map to the site visit.", "Llevar el mapa de rutas a la visita."}},
};

Person person_of(const SampleFrame& frame, std::uint32_t number)
{
    const PersonRow& row = people[number];
    Person person;
    person.id = sample_id(SampleKind::person, number);
    person.name = row.name;
    person.role = row.role;
    person.title = frame.text(row.title);
    person.email = row.email;
    person.phone = row.phone;
    if (row.funder)
        person.funderID = sample_id(SampleKind::funder, static_cast<std::uint32_t>(*row.funder));
    person.notes = frame.text(row.notes);
    return person;
}

} // namespace

std::vector<Funder> sample_funders(const SampleFrame& frame)
{
    std::vector<Funder> made;
    for (std::size_t i = 0; i < funders.size(); ++i)
        made.push_back(funder_of(frame, static_cast<SampleFunder>(i)));
    return made;
}

std::vector<Person> sample_people(const SampleFrame& frame)
{
    std::vector<Person> made;
    for (std::uint32_t i = 0; i < people.size(); ++i)
        made.push_back(person_of(frame, i));
    return made;
}

} // namespace quillfern::grants
