#include "grants/import_fields.h"

#include <cstddef>

namespace quillfern::grants {

namespace {

constexpr std::array<Text, all_import_fields.size()> titles{{
    {"Grant", "Subvención"},
    {"Funder", "Financiador"},
    {"Stage", "Etapa"},
    {"Ask", "Monto solicitado"},
    {"Awarded", "Monto otorgado"},
    {"Probability", "Probabilidad"},
    {"LOI due", "Vence la carta de consulta"},
    {"Application due", "Vence la solicitud"},
    {"Submitted", "Enviada el"},
    {"Decision expected", "Decisión esperada"},
    {"Decided", "Decidida el"},
    {"Award start", "Inicio de la subvención"},
    {"Award end", "Fin de la subvención"},
    {"Next report due", "Próximo informe"},
    {"Program", "Programa"},
    {"Owner", "Responsable"},
    {"Notes", "Notas"},
}};

} // namespace

std::string_view title(ImportField field, Lang lang)
{
    return titles[static_cast<std::size_t>(field)](lang);
}

} // namespace quillfern::grants
