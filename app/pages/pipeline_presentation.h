#pragma once

#include "app/pages/all_grants_presentation.h"
#include "grants/records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillfern::app {

/// One figure with its heading and a note.
struct TileWords {
    std::string label;
    std::string figure;
    std::string note;

    friend bool operator==(const TileWords&, const TileWords&) = default;
};

/// One stage in the pipeline's chart. The lengths are shares of the longest bar, 0 to 1.
struct StageBar {
    grants::Stage stage = grants::Stage::prospect;
    std::string label;
    std::string count;
    std::string asked;
    std::string weighted;
    std::string awarded;
    double length = 0;
    double solid = 0; ///< the dark part of the bar, from its start
    bool outlined = false; ///< declined and withdrawn: nothing comes of it any more
    std::string spoken;

    friend bool operator==(const StageBar&, const StageBar&) = default;
};

/// One request in the table below the chart.
struct RequestRow {
    Uuid id;
    std::string title;
    std::string funder;
    grants::Stage stage = grants::Stage::prospect;
    Figure chance;
    Figure asked;
    Figure weighted;
    Figure decision; ///< the day it was made, else the day it is expected on; "Not set"
    bool late = false; ///< it should have been made before today
    std::string spoken;

    friend bool operator==(const RequestRow&, const RequestRow&) = default;
};

/// What the Pipeline page shows: the grants that a fiscal year counts.
struct PipelinePresentation {
    std::string facts; ///< FY2027 · July 1, 2026 to June 30, 2027 · 13 grants
    std::vector<TileWords> tiles;
    std::vector<StageBar> bars; ///< one a stage
    std::string tableTitle; ///< Open request
    std::vector<RequestRow> rows;
    std::string noRows; ///< what to say when there are none
    bool noGrants = false; ///< the file has none at all

    friend bool operator==(const PipelinePresentation&, const PipelinePresentation&) = default;
};

/// `stage` chooses the grants of the table; absent: all open requests.
PipelinePresentation pipeline_presentation(const grants::GrantFile& file, const grants::Day& today,
    std::int64_t fiscal_year, std::optional<grants::Stage> stage);

} // namespace quillfern::app
