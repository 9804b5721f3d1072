#pragma once

namespace quillfern::app {

/// What a document can be saved as, for other programs and for people. PDFs are still to come.
enum class ExportKind { boardPDF, clientPDF, grantsCSV, calendar };

} // namespace quillfern::app
