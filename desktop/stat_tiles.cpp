#include "desktop/stat_tiles.h"

#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double tile_height = 96;
constexpr double padding = 16;
constexpr double narrow_below = 200; ///< smaller figures
constexpr double least_width = 150;

} // namespace

StatTiles::StatTiles(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void StatTiles::set_tiles(std::vector<StatTile> tiles)
{
    if (tiles == tiles_)
        return;
    tiles_ = std::move(tiles);
    QStringList spoken;
    for (const StatTile& tile : tiles_)
        spoken.append(tile.label + QStringLiteral(": ") + tile.figure
            + (tile.note.isEmpty() ? QString() : QStringLiteral(", ") + tile.note));
    setAccessibleName(spoken.join(QStringLiteral("; ")));
    updateGeometry();
    update();
}

int StatTiles::tiles_in_row(int width) const
{
    const int count = std::max(1, static_cast<int>(tiles_.size()));
    return width / count < scaled(least_width) ? (count + 1) / 2 : count;
}

int StatTiles::heightForWidth(int width) const
{
    const int in_row = tiles_in_row(width);
    const int rows = (static_cast<int>(tiles_.size()) + in_row - 1) / in_row;
    return rows * scaled(tile_height);
}

QSize StatTiles::sizeHint() const
{
    return {scaled(600), heightForWidth(scaled(600))};
}

QSize StatTiles::minimumSizeHint() const
{
    return {scaled(300), scaled(tile_height)};
}

void StatTiles::paint_tile(QPainter& painter, const QRect& place, const StatTile& tile) const
{
    const TextStyle figure_style = place.width() < scaled(narrow_below) ? TextStyle::sheetTitle : TextStyle::figure;
    const QRect inside = place.adjusted(scaled(padding), scaled(14), -scaled(8), 0);
    const auto line = [&inside](int top, TextStyle style) {
        return QRect(inside.left(), inside.top() + top, inside.width(), line_height(style));
    };
    draw_line(painter, line(0, TextStyle::second), tile.label, text_font(TextStyle::second), Role::text2);
    painter.setPen(color(tile.role));
    draw_figures(painter, line(scaled(20), TextStyle::figure), Qt::AlignLeft, tile.figure, text_font(figure_style));
    draw_line(painter, line(scaled(49), TextStyle::second), tile.note, text_font(TextStyle::second), Role::text3);
}

void StatTiles::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int in_row = tiles_in_row(width());
    const int high = scaled(tile_height);
    for (int i = 0; i < static_cast<int>(tiles_.size()); ++i) {
        const int column = i % in_row;
        const int left = column * width() / in_row;
        const QRect place(left, i / in_row * high, (column + 1) * width() / in_row - left, high);
        if (column > 0)
            painter.fillRect(QRect(place.left(), place.top(), 1, place.height()), color(Role::hairline));
        if (place.top() > 0)
            painter.fillRect(QRect(place.left(), place.top(), place.width(), 1), color(Role::hairline));
        paint_tile(painter, place, tiles_[static_cast<std::size_t>(i)]);
    }
}

} // namespace quillfern::desktop
