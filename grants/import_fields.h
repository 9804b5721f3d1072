#pragma once

#include "base/text.h"

#include <array>
#include <string_view>

namespace quillfern::grants {

/// The columns of a grants spreadsheet, in their order: what an export writes and an import can fill.
enum class ImportField {
    title,
    funder,
    stage,
    ask,
    awarded,
    probability,
    loiDue,
    applicationDue,
    submittedOn,
    decisionExpected,
    decidedOn,
    awardStart,
    awardEnd,
    reportDue,
    program,
    owner,
    notes,
};

inline constexpr std::array all_import_fields{ImportField::title, ImportField::funder, ImportField::stage,
    ImportField::ask, ImportField::awarded, ImportField::probability, ImportField::loiDue, ImportField::applicationDue,
    ImportField::submittedOn, ImportField::decisionExpected, ImportField::decidedOn, ImportField::awardStart,
    ImportField::awardEnd, ImportField::reportDue, ImportField::program, ImportField::owner, ImportField::notes};

/// The column's header, by which an exported sheet is recognised again.
std::string_view title(ImportField field, Lang lang);

} // namespace quillfern::grants
