#pragma once

#include "base/read_notes.h"
#include "grants/grant_file.h"

namespace quillfern::grants {

/// Which texts of the file, its board included, hold a CR: one sentence each, naming the key path.
///
/// No text that enters through this program has one (see base/line_endings.h), but a file may come from another. Such a
/// text can end a spreadsheet's row too early, so whoever checks a file is told.
ReadNotes texts_with_carriage_returns(const GrantFile& file);

} // namespace quillfern::grants
