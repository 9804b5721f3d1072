#include "app/pages/grant_cells.h"

#include "app/pages/stage_chip.h"
#include "desktop/qt_text.h"

namespace quillfern::app {

using desktop::Role;
using desktop::TableCell;
using desktop::to_qt;

TableCell title_cell(const std::string& title, const std::string& second)
{
    return {.text = to_qt(title), .second = to_qt(second), .strong = true};
}

TableCell stage_cell(grants::Stage stage)
{
    const desktop::Chip chip = stage_chip(stage);
    return {.text = chip.text, .chip = chip, .order = static_cast<qint64>(stage)};
}

TableCell figure_cell(const Figure& figure, Role role, bool strong)
{
    const bool set = figure.order.has_value();
    return {
        .text = to_qt(figure.text), .role = set ? role : Role::text3, .strong = strong && set, .order = figure.order};
}

TableCell next_date_cell(const NextDate& next)
{
    TableCell cell = figure_cell(next.date, next.overdue ? Role::danger : Role::text, next.overdue);
    cell.second = to_qt(next.what);
    return cell;
}

std::vector<desktop::StatTile> stat_tiles(const std::vector<TileWords>& tiles)
{
    std::vector<desktop::StatTile> shown;
    for (const TileWords& tile : tiles)
        shown.push_back({to_qt(tile.label), to_qt(tile.figure), to_qt(tile.note)});
    return shown;
}

QString row_id(const Uuid& id)
{
    return QString::fromStdString(id.text());
}

} // namespace quillfern::app
