#include "board/sample_board.h"
#include "grants/sample_grant.h"

namespace quillfern::grants {
namespace {

SampleGrant kitchen_training(const SampleFrame& at)
{
    SampleGrant draft(at, 7, Stage::declined, SampleFunder::ostrander);
    Grant& grant = draft.grant;
    grant.loiDue = at.on(2026, 3, 16);
    grant.loiSubmittedOn = at.on(2026, 3, 12);
    grant.applicationDue = at.on(2026, 5, 29);
    grant.submittedOn = at.on(2026, 5, 28);
    grant.decisionExpected = at.on(2026, 8, 21);
    grant.decidedOn = at.on(2026, 8, 20);
    grant.notes =
        at.text({"Declined: the family wants to fund delivery before training. Ask again after the senior boxes.",
            "Rechazada: la familia prefiere financiar entregas antes que formación. Volver a pedir después de "
            "las cajas para mayores."});
    draft
        .named(at.text({"Kitchen Training Program", "Programa de Formación en Cocina"}),
            at.text({"Kitchen and Classes", "Cocina y talleres"}), luis)
        .asking(45'000);
    return draft;
}

/// The decision is two days late: one of the three things that are overdue.
SampleGrant freezer(const SampleFrame& at)
{
    SampleGrant draft(at, 8, Stage::submitted, SampleFunder::marlowe);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 6, 26);
    grant.submittedOn = at.on(2026, 6, 24);
    grant.decisionExpected = at.on(2026, 9, 8);
    grant.notes = at.text({"The old freezer lost its door seal in June; Celia Finch has seen it.",
        "El congelador viejo perdió el sello de la puerta en junio; Celia Finch lo ha visto."});
    draft
        .named(at.text({"Walk-in Freezer Replacement", "Reemplazo del Congelador"}),
            at.text({"Facilities", "Instalaciones"}), luis)
        .asking(40'000)
        .pdf(at.text({"Freezer application", "Solicitud del congelador"}), AttachmentKind::proposal,
            at.at(2026, 6, 24, 20),
            {at.text({"Replace a 1998 walk-in freezer before winter.",
                "Reemplazar un congelador de 1998 antes del invierno."})});
    return draft;
}

SampleGrant backpacks_this_year(const SampleFrame& at)
{
    SampleGrant draft(at, 9, Stage::submitted, SampleFunder::kestrelFoundation);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 7, 31);
    grant.submittedOn = at.on(2026, 7, 30);
    grant.decisionExpected = at.on(2026, 9, 30);
    grant.probability = 65;
    grant.notes = at.text({"Nadia expects a renewal; two more schools asked to join.",
        "Nadia espera una renovación; dos escuelas más pidieron unirse."});
    draft
        .named(at.text({"Weekend Backpacks ", "Mochilas de Fin de Semana "}) + season(at.on(2026, 9, 1)),
            at.text({"Weekend Backpacks", "Mochilas de fin de semana"}), dana)
        .asking(25'000);
    return draft;
}

SampleGrant youth_cooking(const SampleFrame& at)
{
    SampleGrant draft(at, 10, Stage::withdrawn, SampleFunder::pemberwick);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 8, 14);
    grant.decisionExpected = at.on(2026, 10, 15);
    grant.notes = at.text({"Withdrawn in August: the school keeps its kitchen closed this year.",
        "Retirada en agosto: la escuela mantiene cerrada su cocina este año."});
    draft
        .named(at.text({"Youth Cooking Club", "Club Juvenil de Cocina"}),
            at.text({"Kitchen and Classes", "Cocina y talleres"}), luis)
        .asking(8'000);
    return draft;
}

/// Its decision has no date yet, and so its milestone has none either.
SampleGrant garden(const SampleFrame& at)
{
    SampleGrant draft(at, 11, Stage::prospect, SampleFunder::pemberwick);
    draft.grant.loiDue = at.on(2026, 11, 20);
    draft.grant.notes = at.text({"Eight raised beds and a rain barrel behind the loading dock.",
        "Ocho bancales y un barril de lluvia detrás del muelle de carga."});
    draft
        .named(
            at.text({"Community Garden, Phase II", "Huerto Comunitario, Fase II"}), at.text({"Garden", "Huerto"}), luis)
        .asking(15'000)
        .milestone(at.text({"Tell the garden volunteers", "Avisar al voluntariado del huerto"}),
            OffsetFrom{7, DateAnchor::decision});
    return draft;
}

SampleGrant route_expansion(const SampleFrame& at)
{
    SampleGrant draft(at, 12, Stage::drafting, SampleFunder::tessaly);
    Grant& grant = draft.grant;
    grant.loiDue = at.on(2026, 5, 20);
    grant.loiSubmittedOn = at.on(2026, 5, 18);
    grant.applicationDue = at.on(2026, 9, 15);
    grant.decisionExpected = at.on(2026, 12, 4);
    grant.probability = 50;
    grant.notes = at.text({"A third route for the eastern townships; letters of support from two clinics are in.",
        "Una tercera ruta para los municipios del este; ya llegaron cartas de apoyo de dos clínicas."});
    draft
        .named(at.text({"Mobile Pantry Route Expansion", "Ampliación de Rutas de la Despensa Móvil"}),
            at.text({"Mobile Pantry", "Despensa móvil"}), dana)
        .asking(85'000)
        .milestone(at.text({"Draft budget to Marguerite", "Borrador del presupuesto a Marguerite"}),
            OffsetFrom{-21, DateAnchor::applicationDue}, true);
    return draft;
}

SampleGrant nutrition_classes(const SampleFrame& at)
{
    SampleGrant draft(at, 13, Stage::drafting, SampleFunder::kestrelHealth);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 10, 5);
    grant.decisionExpected = at.on(2026, 12, 18);
    grant.notes = at.text({"Twelve evenings with the county's dietitian, in English and Spanish.",
        "Doce tardes con la dietista del condado, en inglés y español."});
    draft
        .named(at.text({"Nutrition Classes at the Pantry", "Talleres de Nutrición en la Despensa"}),
            at.text({"Kitchen and Classes", "Cocina y talleres"}), luis)
        .asking(32'500);
    return draft;
}

SampleGrant senior_box_delivery(const SampleFrame& at)
{
    SampleGrant draft(at, 14, Stage::loi, SampleFunder::ostrander);
    draft.grant.loiDue = at.on(2026, 9, 17);
    draft.grant.decisionExpected = at.on(2027, 2, 26);
    draft.grant.notes = at.text({"Gas cards and coolers for volunteer drivers. Judith prefers one page.",
        "Tarjetas de gasolina y neveras para conductores voluntarios. Judith prefiere una página."});
    draft
        .named(at.text({"Senior Box Delivery", "Entrega de Cajas para Mayores"}),
            at.text({"Senior Boxes", "Cajas para mayores"}), dana)
        .asking(60'000);
    return draft;
}

SampleGrant refrigerated_van(const SampleFrame& at)
{
    SampleGrant draft(at, 15, Stage::loi, SampleFunder::foodAccess);
    Grant& grant = draft.grant;
    grant.loiDue = at.on(2026, 8, 31);
    grant.loiSubmittedOn = at.on(2026, 8, 27);
    grant.applicationDue = at.on(2026, 10, 30);
    grant.decisionExpected = at.on(2027, 3, 31);
    grant.probability = 25;
    grant.boardItemID = board::sample_grant_item_id();
    grant.notes = at.text({"Replaces the 2011 truck; no match is required. The board has to authorize the application.",
        "Reemplaza el camión de 2011; no se exige contrapartida. La junta debe autorizar la solicitud."});
    draft
        .named(
            at.text({"Refrigerated Van", "Furgoneta Refrigerada"}), at.text({"Mobile Pantry", "Despensa móvil"}), luis)
        .asking(120'000)
        .file(at.text({"Letter to the state office.txt", "Carta a la oficina estatal.txt"}),
            AttachmentKind::correspondence, at.at(2026, 8, 27, 16),
            at.text({"Dear Mr. Nguyễn,\n\nPlease find our letter of inquiry for a refrigerated van below.\n\n"
                     "Luis Arroyo\nLinden Ferry Community Pantry\n",
                "Estimado señor Nguyễn:\n\nAbajo está nuestra carta de consulta para una furgoneta refrigerada.\n\n"
                "Luis Arroyo\nLinden Ferry Community Pantry\n"}));
    return draft;
}

SampleGrant general_operating(const SampleFrame& at)
{
    SampleGrant draft(at, 16, Stage::prospect, SampleFunder::pemberwick);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2027, 2, 1);
    grant.decisionExpected = at.on(2027, 4, 30);
    grant.notes = at.text({"Opens in December. The fund asks for the audited statements.",
        "Abre en diciembre. El fondo pide los estados financieros auditados."});
    draft
        .named(at.text({"General Operating ", "Operación General "}) + std::to_string(grant.decisionExpected->year),
            at.text({"General Operating", "Operación general"}), marguerite)
        .asking(50'000);
    return draft;
}

SampleGrant budget_evenings(const SampleFrame& at)
{
    SampleGrant draft(at, 17, Stage::declined, SampleFunder::holloway);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 1, 16);
    grant.submittedOn = at.on(2026, 1, 15);
    grant.decisionExpected = at.on(2026, 4, 10);
    grant.decidedOn = at.on(2026, 4, 8);
    grant.notes =
        at.text({"Declined: their budget for classes was spent. They suggested the volunteer program instead.",
            "Rechazada: su presupuesto para talleres estaba gastado. Sugirieron el programa de voluntariado."});
    draft
        .named(at.text({"Household Budget Evenings", "Tardes de Presupuesto Familiar"}),
            at.text({"Kitchen and Classes", "Cocina y talleres"}), luis)
        .asking(9'500);
    return draft;
}

} // namespace

std::vector<SampleGrant> sample_requests(const SampleFrame& frame)
{
    return {kitchen_training(frame), freezer(frame), backpacks_this_year(frame), youth_cooking(frame), garden(frame),
        route_expansion(frame), nutrition_classes(frame), senior_box_delivery(frame), refrigerated_van(frame),
        general_operating(frame), budget_evenings(frame)};
}

} // namespace quillfern::grants
