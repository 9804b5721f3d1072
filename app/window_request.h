#pragma once

#include "app/export_kind.h"
#include "app/sidebar_item.h"

#include <variant>

/// What a menu command asks of the document window that has the keyboard. A command never edits a document itself: it
/// leaves its request in the window's state, and the window takes it from there, performs it and clears it at once, so
/// that the same command given twice acts twice.
namespace quillfern::app {

namespace request {

/// Opens the export sheet on a kind.
struct Export {
    ExportKind kind = ExportKind::grantsCSV;

    friend bool operator==(const Export&, const Export&) = default;
};

struct Show {
    SidebarItem item = SidebarItem::today;

    friend bool operator==(const Show&, const Show&) = default;
};

/// Asks for a board file and imports its board.
struct ImportMarrowind {
    friend bool operator==(const ImportMarrowind&, const ImportMarrowind&) = default;
};

} // namespace request

using WindowRequest = std::variant<request::Export, request::Show, request::ImportMarrowind>;

} // namespace quillfern::app
