#pragma once

#include "grants/grant_file.h"

#include <cstddef>
#include <string>

namespace quillfern::bench {

/// A believable file of any size, the same at each call: each grant has four reports, three payments, two milestones,
/// one attachment and 300 characters of notes; ten grants share a funder.
grants::GrantFile made_file(std::size_t grant_count);

} // namespace quillfern::bench
