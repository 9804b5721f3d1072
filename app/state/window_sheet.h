#pragma once

#include "app/state/export_kind.h"

#include <variant>

namespace quillfern::app {

namespace sheet {

struct Export {
    ExportKind kind = ExportKind::grantsCSV;

    friend bool operator==(const Export&, const Export&) = default;
};

enum class Plain { funder, splitPayments, milestone, person, importCSV, welcome };

} // namespace sheet

/// A sheet of a document window; there is at most one at a time.
using WindowSheet = std::variant<sheet::Export, sheet::Plain>;

} // namespace quillfern::app
