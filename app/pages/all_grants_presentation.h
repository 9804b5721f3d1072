#pragma once

#include "app/pages/next_dates.h"
#include "grants/grant_file.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::app {

/// One grant in a list of grants.
struct GrantRow {
    Uuid id;
    std::string title;
    std::string funder;
    grants::Stage stage = grants::Stage::prospect;
    Figure asked;
    Figure awarded;
    NextDate next;
    std::string owner;
    std::string spoken; ///< all of it in one sentence, for screen readers

    friend bool operator==(const GrantRow&, const GrantRow&) = default;
};

GrantRow grant_row(
    const grants::Grant& grant, const std::string& funder, const NextDates& dates, const grants::GrantFile& file);

/// What a page says instead of a list.
struct EmptyWords {
    std::string heading;
    std::string line;

    friend bool operator==(const EmptyWords&, const EmptyWords&) = default;
};

/// Why the list of grants is empty.
enum class Emptiness { none, noGrants, noneInYear, noneInStage, noMatch };

/// What the All Grants page shows: the grants of one fiscal year by key day. Grants that no date places in a year are
/// shown in every year, first, so that a new grant is never out of sight.
struct AllGrantsPresentation {
    std::string facts; ///< FY2027 · 13 grants; FY2027 · 3 of 13 grants
    std::string order; ///< ordered by key date; empty when there is nothing to order
    std::vector<GrantRow> rows;
    std::string count; ///< 13 grants
    std::string asked; ///< the sums of the rows
    std::string awarded;
    Emptiness emptiness = Emptiness::none;
    EmptyWords empty;

    friend bool operator==(const AllGrantsPresentation&, const AllGrantsPresentation&) = default;
};

struct GrantsFilter {
    std::int64_t fiscalYear = 0;
    std::optional<grants::Stage> stage;
    std::string_view search; ///< as typed; blanks around it do not count
};

AllGrantsPresentation all_grants_presentation(
    const grants::GrantFile& file, const grants::Day& today, const GrantsFilter& filter);

} // namespace quillfern::app
