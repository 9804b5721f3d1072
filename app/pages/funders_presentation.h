#pragma once

#include "app/pages/pipeline_presentation.h"

#include <optional>
#include <string>
#include <vector>

namespace quillfern::app {

/// One funder in the list.
struct FunderLine {
    Uuid id;
    std::string name;
    std::string line; ///< Private foundation · 2 grants
    std::string amount; ///< what it has awarded; a dash when nothing
    std::string amountNote; ///< "awarded" or "no award yet"
    std::string spoken;

    friend bool operator==(const FunderLine&, const FunderLine&) = default;
};

/// A line of a record: what it is, and its text. Lines without a text are left out.
struct RecordLine {
    enum class Kind { text, email, web, hint };

    std::string label;
    std::string text;
    Kind kind = Kind::text;

    friend bool operator==(const RecordLine&, const RecordLine&) = default;
};

/// One funder's record.
struct FunderRecord {
    Uuid id;
    std::string name;
    std::string line; ///< Private foundation · EIN 00-7714302
    std::vector<TileWords> tiles;
    std::vector<RecordLine> contact; ///< how to reach it and what it gives for
    std::vector<RecordLine> giving; ///< when it gives, and where the details come from
    std::vector<GrantRow> grants; ///< of all years, the latest first

    friend bool operator==(const FunderRecord&, const FunderRecord&) = default;
};

struct FundersPresentation {
    std::string facts; ///< 9 funders
    std::vector<FunderLine> lines; ///< by name
    std::optional<FunderRecord> record; ///< the chosen funder's, else the first one's; absent when there is none

    friend bool operator==(const FundersPresentation&, const FundersPresentation&) = default;
};

FundersPresentation funders_presentation(
    const grants::GrantFile& file, const grants::Day& today, const std::optional<Uuid>& chosen);

} // namespace quillfern::app
