#pragma once

#include "base/instant.h"

#include <cstdint>
#include <vector>

namespace quillfern::platform {

/// One kept state, as pruning sees it.
struct KeptState {
    Instant savedAt;
    std::int64_t bytes = 0; ///< on the disk, without what it shares with newer ones or with the document
    bool inUse = false; ///< somebody reads from it: it stays whatever else holds
};

/// How many earlier states of one document are worth their room.
struct PruningRule {
    std::size_t recent = 50; ///< the newest, all of them
    std::int64_t days = 30; ///< then the newest of each day, so many days back
    std::int64_t weeks = 26; ///< then the newest of each week
    std::int64_t bytes = std::int64_t{2} * 1024 * 1024 * 1024; ///< of all; the oldest go first, never the newest
};

/// The places in `newest_first` of the states that go.
std::vector<std::size_t> states_to_drop(
    const std::vector<KeptState>& newest_first, Instant now, const PruningRule& rule = {});

} // namespace quillfern::platform
