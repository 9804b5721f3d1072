#pragma once

#include "grants/agenda.h"

#include <optional>

/// What can be done with an agenda item where it is listed, in one step and without asking for more.
namespace quillfern::grants {

enum class AgendaAction { markSubmitted, startDraft, markReceived, markDone };

/// None for an item that is done, and none for a decision, which needs to be told how it came out.
std::optional<AgendaAction> action_of(const AgendaItem& item);

/// Does what action_of() offers, after which the item is done. What was done today gets today's date; `now` becomes the
/// grant's time of change. An item that is gone or done in the meantime leaves the file as it is.
///
/// Only what the action says is recorded. A letter or an application that is sent brings the request to the stage of
/// that name, because the pipeline would otherwise go on counting it among those still being written; no request moves
/// back. A payment counts as received in full unless another amount stands there already.
GrantFile perform(const GrantFile& file, const AgendaItem& item, const Day& today, Instant now);

} // namespace quillfern::grants
