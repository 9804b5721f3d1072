#pragma once

#include "base/shared.h"
#include "grants/grant_file.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillfern::grants {

/// One funder's record with the organization.
struct FunderHistory {
    Shared<Funder> funder;
    std::int64_t grantCount = 0;
    Money asked;
    Money awarded; ///< the award values of its awarded grants
    std::int64_t awardedCount = 0;
    std::int64_t declinedCount = 0;
    std::optional<Day> lastAward; ///< the latest key day of an awarded grant
    std::optional<Day> nextDeadline; ///< the earliest open date of any kind, today or later

    friend bool operator==(const FunderHistory&, const FunderHistory&) = default;
};

/// One for each funder of the file, by name as a directory sorts names. Funders that share an identifier share their
/// grants.
std::vector<FunderHistory> funder_histories(const GrantFile& file, const Day& today);

} // namespace quillfern::grants
