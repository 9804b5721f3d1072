#pragma once

#include "grants/grant_file.h"

#include <string>

namespace quillfern::grants {

/// Whether the text of a "Quillfern.json" gives the file's records back, every one of them. A save asks before the text
/// may take the place of what is on the disk: a fault of the writer must not cost the only copy.
///
/// Reading back takes longer than the disk does, so the grants of a large file are read in small pieces, several at a
/// time. The pieces and what stands around them make up the whole text, so nothing in it goes unread.
bool reads_back(const std::string& text, const GrantFile& file);

} // namespace quillfern::grants
