#pragma once

namespace quillfern::app {

/// What a document can be saved as, for other programs.
enum class ExportKind { grantsCSV, calendar };

} // namespace quillfern::app
