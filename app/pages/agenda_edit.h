#pragma once

#include "grants/agenda_actions.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillfern::app {

/// What stands on the button of an agenda row.
std::string_view action_title(grants::AgendaAction action);

/// An edit of the document that was asked for on a row of the agenda.
struct AgendaEdit {
    grants::GrantFile next;
    std::string label; ///< of the undo step
    std::string toast;
};

/// What the action of an agenda item makes of the file; absent when the item is gone or has no action.
std::optional<AgendaEdit> agenda_edit(
    const grants::GrantFile& file, std::string_view item_id, const grants::Day& today, Instant now);

} // namespace quillfern::app
