#pragma once

#include "app/pages/next_dates.h"
#include "app/pages/pipeline_presentation.h"
#include "desktop/stat_tiles.h"
#include "desktop/table_model.h"
#include "grants/records.h"

#include <vector>

/// How the pages' words stand in tables and tiles.
namespace quillfern::app {

desktop::TableCell title_cell(const std::string& title, const std::string& second = {});
desktop::TableCell stage_cell(grants::Stage stage);

/// A figure that does not apply or is not set is set back.
desktop::TableCell figure_cell(const Figure& figure, desktop::Role role = desktop::Role::text, bool strong = false);

/// In red when it is overdue.
desktop::TableCell next_date_cell(const NextDate& next);

std::vector<desktop::StatTile> stat_tiles(const std::vector<TileWords>& tiles);

/// The id of a record as a row's.
QString row_id(const Uuid& id);

} // namespace quillfern::app
