#pragma once

#include "app/state/export_kind.h"
#include "app/state/sidebar_item.h"

#include <variant>

/// What a menu command asks of the document window that has the keyboard. A command never edits a document itself: it
/// leaves its request in the window's state, and the window takes it from there, performs it and clears it at once, so
/// that the same command given twice acts twice.
///
/// A request that needs a grant is about the grant that is shown. Commands whose page is still to come are disabled, so
/// their requests never arrive.
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

/// Those that say everything by their name.
enum class Plain {
    newGrant,
    importCSV,
    printBoard,
    addToCalendar,
    generateReports,
    addAttachment,
    deleteGrant, ///< asks first: see WindowState::confirmDelete
    importMarrowind,
    askBoard,
};

} // namespace request

using WindowRequest = std::variant<request::Export, request::Show, request::Plain>;

} // namespace quillfern::app
