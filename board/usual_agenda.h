#pragma once

#include "board/edits.h"

#include <string>
#include <vector>

namespace quillfern::board {

/// The agenda with which a meeting of the kind starts, before anything is carried forward. A special meeting has its
/// purpose as its only business.
std::vector<AgendaItem> usual_agenda(MeetingKind kind, const std::string& purpose, const NewId& new_id, Lang lang);

} // namespace quillfern::board
