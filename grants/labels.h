#pragma once

#include "base/text.h"
#include "grants/agenda.h"
#include "grants/records.h"

#include <string>
#include <string_view>

/// What a person reads for each case of the records' enumerations, in pickers, pages and generated documents.
namespace quillfern::grants {

std::string_view label(Stage stage, Lang lang);
std::string_view label(FunderKind kind, Lang lang);
std::string_view label(DateAnchor anchor, Lang lang); ///< fits after "days before": the award end
std::string_view label(ReportFrequency frequency, Lang lang);
std::string_view label(ReportStatus status, Lang lang);
std::string_view label(AttachmentKind kind, Lang lang);
std::string_view label(PersonRole role, Lang lang);
std::string_view label(AgendaKind kind, Lang lang);
std::string_view label(Bucket bucket, Lang lang);

/// The sentence that says where a funder's details came from; empty when the user typed them in.
std::string source_sentence(const FunderSource& source, Lang lang);

} // namespace quillfern::grants
