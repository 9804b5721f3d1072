#pragma once

#include "grants/grant_file.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillfern::app {

/// The fiscal years that the tool bar offers, newest first, and the one that the window shows.
struct FiscalYearChoice {
    std::vector<std::int64_t> years;
    std::vector<std::string> labels; ///< one a year: FY2027
    std::size_t shown = 0;

    friend bool operator==(const FiscalYearChoice&, const FiscalYearChoice&) = default;
};

/// The years of the file's grants and today's. The year on show stays on the list when its last grant has gone.
FiscalYearChoice fiscal_year_choice(const grants::GrantFile& file, const grants::Day& today, std::int64_t shown);

} // namespace quillfern::app
