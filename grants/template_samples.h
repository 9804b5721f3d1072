#pragma once

#include "base/text.h"
#include "grants/grant_file.h"

namespace quillfern::grants {

/// The two grants that the import template shows, with their made-up funders: an after-school arts program that was
/// awarded and is paid in two payments, and cold storage for a pantry that was asked for.
GrantFile template_samples(Lang lang);

} // namespace quillfern::grants
