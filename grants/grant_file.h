#pragma once

#include "base/shared.h"
#include "board/board.h"
#include "grants/profile.h"
#include "grants/records.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quillfern::grants {

/// Everything an organization keeps, decoded: the content of "Quillfern.json".
///
/// Lists and maps that grow with the organization sit in shared nodes, so that a copy of the file (an undo step, a
/// snapshot for recovery) costs pointers.
struct GrantFile {
    static constexpr std::int64_t current_format = 2;

    std::int64_t formatVersion = current_format; ///< as read; always written as the current format
    OrgProfile org;
    std::vector<Shared<Funder>> funders;
    std::vector<Shared<Grant>> grants;
    FileSettings settings;
    Shared<std::map<std::string, Day>> calendarAdded; ///< which deadline is in the user's calendar, for which day
    Shared<board::Board> board; ///< an empty board when the organization keeps none here
    std::vector<Shared<Person>> people;

    friend bool operator==(const GrantFile&, const GrantFile&) = default;
};

} // namespace quillfern::grants
