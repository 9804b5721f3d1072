#pragma once

#include "desktop/chips.h"
#include "grants/records.h"

namespace quillfern::app {

/// A stage as a chip: the open ones with pips for how far they have come.
desktop::Chip stage_chip(grants::Stage stage);

} // namespace quillfern::app
