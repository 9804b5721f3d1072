#include "board/sample_board.h"
#include "grants/sample_grant.h"

namespace quillfern::grants {
namespace {

/// The grant with a history in every column: a late report, a payment held back, one paid short.
SampleGrant senior_nutrition(const SampleFrame& at)
{
    SampleGrant draft(at, 1, Stage::awarded, SampleFunder::kestrelHealth);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2025, 10, 31);
    grant.submittedOn = at.on(2025, 10, 29);
    grant.decisionExpected = at.on(2026, 1, 30);
    grant.decidedOn = at.on(2026, 1, 20);
    grant.boardMotionID = board::sample_motion_id(board::SampleBoard::nonprofit, 3);
    grant.notes =
        at.text({"Delivers a 22-pound box to 140 homebound adults over 60 in four townships, twice a month. The "
                 "county pays quarterly after each report is accepted; ask Owen before moving any line by more "
                 "than 10%.",
            "Lleva una caja de 10 kilos a 140 personas mayores de 60 años que no pueden salir de casa, en "
            "cuatro municipios, dos veces al mes. El condado paga cada trimestre cuando acepta el informe; "
            "pregunte a Owen antes de mover más del 10% de cualquier partida."});
    draft
        .named(at.text({"Senior Nutrition Partnership", "Alianza de Nutrición para Mayores"}),
            at.text({"Senior Boxes", "Cajas para mayores"}), dana)
        .asking(68'000)
        .awarded(64'000, at.on(2026, 2, 1), at.on(2027, 1, 31), ReportFrequency::quarterly)
        .payment(at.on(2026, 3, 2), 16'000, at.text({"Quarter 1", "Trimestre 1"}))
        .received(at.on(2026, 3, 4))
        .payment(at.on(2026, 6, 1), 16'000,
            at.text({"Quarter 2; county kept back $500 for unspent mileage",
                "Trimestre 2; el condado retuvo $500 por kilometraje no usado"}))
        .received(at.on(2026, 6, 9))
        .payment(at.on(2026, 9, 1), 16'000,
            at.text({"Quarter 3; held until the Quarter 2 report",
                "Trimestre 3; retenido hasta el informe del trimestre 2"}))
        .payment(at.on(2026, 12, 1), 16'000, at.text({"Quarter 4", "Trimestre 4"}))
        .milestone(at.text({"Home delivery survey to participants", "Encuesta de entrega a domicilio"}),
            OnDay{at.on(2026, 11, 2)})
        .milestone(at.text({"Send the ", "Enviar la carta de renovación de "}) + std::to_string(grant.awardEnd->year)
                + (at.lang() == Lang::en ? " renewal letter" : ""),
            OffsetFrom{-60, DateAnchor::awardEnd})
        .milestone(at.text({"Kick-off call with Owen Tillery", "Llamada inicial con Owen Tillery"}),
            OffsetFrom{14, DateAnchor::awardStart}, true);
    grant.payments[1].receivedAmount = Money::from_units(15'500);
    grant.reports[0].status = ReportStatus::submitted;
    grant.reports[0].submittedOn = at.on(2026, 5, 27);
    grant.reports[0].notes =
        at.text({"Accepted by the county on the first reading.", "Aceptado por el condado en la primera lectura."});
    grant.reports[1].status = ReportStatus::drafting;
    grant.reports[1].notes = at.text(
        {"Mileage log from the north route still missing.", "Falta el registro de kilometraje de la ruta norte."});
    return draft;
}

void add_senior_nutrition_files(SampleGrant& draft, const SampleFrame& at)
{
    const std::string year = std::to_string(draft.grant.awardStart->year);
    draft
        .pdf(at.text({"Award letter ", "Carta de adjudicación "}) + year, AttachmentKind::awardLetter,
            at.at(2026, 1, 22, 15),
            {at.text({"Kestrel County awards $64,000 for the Senior Nutrition Partnership.",
                 "El condado de Kestrel otorga $64,000 a la Alianza de Nutrición para Mayores."}),
                at.text({"Four payments of $16,000, one after each quarter's report.",
                    "Cuatro pagos de $16,000, uno tras el informe de cada trimestre."})})
        .pdf(at.text({"County agreement, signed", "Convenio con el condado, firmado"}), AttachmentKind::agreement,
            at.at(2026, 2, 3, 16),
            {at.text({"Signed by Marguerite Okafor for Linden Ferry Community Pantry.",
                "Firmado por Marguerite Okafor por Linden Ferry Community Pantry."})})
        .pdf(at.text({"Senior boxes proposal", "Propuesta de cajas para mayores"}), AttachmentKind::proposal,
            at.at(2025, 10, 29, 18),
            {at.text({"Two boxes a month for 140 homebound adults over 60.",
                "Dos cajas al mes para 140 personas mayores de 60 años que no pueden salir de casa."})})
        .file(at.text({"Budget ", "Presupuesto "}) + year + at.text({" by quarter.csv", " por trimestre.csv"}),
            AttachmentKind::budget, at.at(2025, 10, 29, 18),
            at.text({"Line,Quarter 1,Quarter 2,Quarter 3,Quarter 4\r\nFood,11000,11000,11000,11000\r\n"
                     "Mileage,3000,3000,3000,3000\r\nStaff,2000,2000,2000,2000\r\n",
                "Partida,Trimestre 1,Trimestre 2,Trimestre 3,Trimestre 4\r\nAlimentos,11000,11000,11000,11000\r\n"
                "Kilometraje,3000,3000,3000,3000\r\nPersonal,2000,2000,2000,2000\r\n"}))
        .pdf(draft.grant.reports[0].title, AttachmentKind::report, at.at(2026, 5, 27, 19),
            {at.text({"838 boxes delivered, 140 participants, 12 volunteers on the road.",
                "838 cajas entregadas, 140 participantes, 12 personas voluntarias en ruta."})});
}

SampleGrant cold_storage(const SampleFrame& at)
{
    SampleGrant draft(at, 2, Stage::awarded, SampleFunder::marlowe);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 2, 27);
    grant.submittedOn = at.on(2026, 2, 25);
    grant.decisionExpected = at.on(2026, 4, 15);
    grant.decidedOn = at.on(2026, 4, 14);
    grant.notes = at.text({"Two walk-in coolers and the wiring. The second payment follows the installer's invoice.",
        "Dos cámaras frías y la instalación eléctrica. El segundo pago sigue a la factura del "
        "instalador."});
    draft
        .named(at.text({"Cold Storage Upgrade", "Mejora de la Cámara Fría"}), at.text({"Facilities", "Instalaciones"}),
            luis)
        .asking(48'500)
        .awarded(48'500, at.on(2026, 5, 1), at.on(2026, 10, 31), ReportFrequency::finalOnly)
        .payment(at.on(2026, 5, 8), 30'000)
        .received(at.on(2026, 5, 8))
        .payment(at.on(2026, 9, 14), 18'500)
        .pdf(at.text({"Installer's quote", "Cotización del instalador"}), AttachmentKind::budget,
            at.at(2026, 2, 24, 17),
            {at.text({"Coldwater Mechanical: two walk-in coolers, installed, $46,200.",
                "Coldwater Mechanical: dos cámaras frías, instaladas, $46,200."})});
    return draft;
}

/// Last year's grant: over, but its final report is still owed.
SampleGrant backpacks_last_year(const SampleFrame& at)
{
    const Day start = at.on(2025, 9, 1);
    SampleGrant draft(at, 3, Stage::awarded, SampleFunder::kestrelFoundation);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2025, 5, 30);
    grant.submittedOn = at.on(2025, 5, 28);
    grant.decisionExpected = at.on(2025, 7, 31);
    grant.decidedOn = at.on(2025, 7, 29);
    grant.notes = at.text({"86 children a week took food home. The foundation likes photographs without faces.",
        "86 niños llevaron comida a casa cada semana. La fundación prefiere fotos sin caras."});
    draft
        .named(at.text({"Weekend Backpacks ", "Mochilas de Fin de Semana "}) + season(start),
            at.text({"Weekend Backpacks", "Mochilas de fin de semana"}), dana)
        .asking(25'000)
        .awarded(22'000, start, at.on(2026, 8, 31), ReportFrequency::finalOnly)
        .payment(at.on(2025, 10, 1), 5'500)
        .received(at.on(2025, 10, 2))
        .payment(at.on(2026, 1, 5), 5'500)
        .received(at.on(2026, 1, 5))
        .payment(at.on(2026, 4, 1), 5'500)
        .received(at.on(2026, 4, 6))
        .payment(at.on(2026, 7, 1), 5'500)
        .received(at.on(2026, 7, 8));
    grant.reports[0].draftLeadDays = 14;
    return draft;
}

SampleGrant mobile_pantry(const SampleFrame& at)
{
    SampleGrant draft(at, 4, Stage::awarded, SampleFunder::tessaly);
    Grant& grant = draft.grant;
    grant.loiDue = at.on(2026, 2, 2);
    grant.loiSubmittedOn = at.on(2026, 1, 30);
    grant.applicationDue = at.on(2026, 3, 31);
    grant.submittedOn = at.on(2026, 3, 27);
    grant.decisionExpected = at.on(2026, 7, 10);
    grant.decidedOn = at.on(2026, 7, 7);
    grant.notes = at.text({"Driver, fuel and insurance for the Tuesday and Thursday routes.",
        "Conductor, combustible y seguro de las rutas de martes y jueves."});
    draft
        .named(at.text({"Mobile Pantry Operations", "Operación de la Despensa Móvil"}),
            at.text({"Mobile Pantry", "Despensa móvil"}), dana)
        .asking(80'000)
        .awarded(75'000, at.on(2026, 8, 1), at.on(2027, 7, 31), ReportFrequency::quarterly)
        .payment(at.on(2026, 8, 18), 25'000)
        .received(at.on(2026, 8, 18))
        .payment(at.on(2026, 11, 16), 25'000)
        .payment(at.on(2027, 4, 1), 25'000)
        .milestone(at.text({"Site visit with Priya Raman", "Visita de Priya Raman"}), OnDay{at.on(2026, 9, 11)})
        .milestone(
            at.text({"Ask about a second year", "Preguntar por un segundo año"}), OffsetFrom{-90, DateAnchor::awardEnd})
        .pdf(at.text({"Award letter, Tessaly Health Trust", "Carta de adjudicación, Tessaly Health Trust"}),
            AttachmentKind::awardLetter, at.at(2026, 7, 9, 14),
            {at.text({"$75,000 over twelve months, in three payments.", "$75,000 en doce meses, en tres pagos."})});
    return draft;
}

SampleGrant volunteer_coordinator(const SampleFrame& at)
{
    SampleGrant draft(at, 5, Stage::awarded, SampleFunder::holloway);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 5, 15);
    grant.submittedOn = at.on(2026, 5, 12);
    grant.decisionExpected = at.on(2026, 7, 15);
    grant.decidedOn = at.on(2026, 7, 14);
    grant.notes = at.text({"Half a position. Holloway asks for its name in the volunteer newsletter.",
        "Media jornada. Holloway pide que se la nombre en el boletín del voluntariado."});
    draft
        .named(at.text({"Volunteer Coordinator", "Coordinación del Voluntariado"}),
            at.text({"Volunteers", "Voluntariado"}), marguerite)
        .asking(20'000)
        .awarded(18'000, at.on(2026, 7, 1), at.on(2027, 6, 30), ReportFrequency::finalOnly)
        .payment(at.on(2026, 7, 20), 9'000)
        .received(at.on(2026, 7, 22))
        .payment(at.on(2027, 2, 1), 9'000);
    return draft;
}

SampleGrant emergency_food(const SampleFrame& at)
{
    SampleGrant draft(at, 6, Stage::awarded, SampleFunder::saintBrannoc);
    Grant& grant = draft.grant;
    grant.applicationDue = at.on(2026, 6, 30);
    grant.submittedOn = at.on(2026, 6, 29);
    grant.decisionExpected = at.on(2026, 8, 7);
    grant.decidedOn = at.on(2026, 8, 4);
    grant.boardMotionID = board::sample_motion_id(board::SampleBoard::nonprofit, 10);
    grant.notes = at.text({"Shelf-stable food for the winter; receipts only, no salaries.",
        "Alimentos no perecederos para el invierno; solo con recibos, sin salarios."});
    draft
        .named(at.text({"Emergency Food Purchases", "Compra de Alimentos de Emergencia"}),
            at.text({"Food Purchasing", "Compra de alimentos"}), marguerite)
        .asking(12'000)
        .awarded(12'000, at.on(2026, 9, 1), at.on(2027, 2, 28), ReportFrequency::finalOnly)
        .payment(at.on(2026, 9, 18), 12'000);
    return draft;
}

} // namespace

std::vector<SampleGrant> sample_awards(const SampleFrame& frame)
{
    std::vector<SampleGrant> awards;
    awards.push_back(senior_nutrition(frame));
    add_senior_nutrition_files(awards.back(), frame);
    awards.push_back(cold_storage(frame));
    awards.push_back(backpacks_last_year(frame));
    awards.push_back(mobile_pantry(frame));
    awards.push_back(volunteer_coordinator(frame));
    awards.push_back(emergency_food(frame));
    return awards;
}

} // namespace quillfern::grants
