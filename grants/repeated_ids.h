#pragma once

#include "base/read_notes.h"
#include "grants/grant_file.h"

namespace quillfern::grants {

/// Which grants have the id of a grant before them, and which reports, payments, milestones and attachments that of one
/// before them in the same list: one sentence each, naming the key path.
///
/// This program never makes one twice, but a file may come from another. Calendar events and reminders are known by
/// these ids, so two such records would be taken for one.
ReadNotes repeated_ids(const GrantFile& file);

} // namespace quillfern::grants
