#include "desktop/table_painting.h"

#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillfern::desktop {
namespace {

constexpr double cell_padding = 14;
constexpr double end_padding = 16;
constexpr double row_height = 45;
constexpr double head_height = 35;

const QFont& first_font(const TableCell& cell)
{
    return text_font(cell.strong ? TextStyle::bodyStrong : TextStyle::body);
}

int text_width(const QString& text, const QFont& font, const TableColumn& column)
{
    return column.content == TableColumn::Content::figures ? static_cast<int>(std::ceil(figures_width(text, font)))
                                                           : QFontMetrics(font).horizontalAdvance(text) + 1;
}

void paint_text(
    QPainter& painter, const QRect& box, const QString& text, const QFont& font, Role role, const TableColumn& column)
{
    if (column.content == TableColumn::Content::words)
        return draw_line(painter, box, text, font, role, column.alignment);
    painter.setPen(color(role));
    draw_figures(painter, box, column.alignment, text, font);
}

} // namespace

QRect table_content(const QRect& cell, bool first, bool last)
{
    return cell.adjusted(scaled(first ? end_padding : cell_padding), 0, -scaled(last ? end_padding : cell_padding), 0);
}

int table_head_height()
{
    return scaled(head_height);
}

int table_row_height()
{
    return scaled(row_height);
}

void paint_table_cell(
    QPainter& painter, const QRect& content, const TableCell& cell, const TableColumn& column, bool selected)
{
    if (cell.chip)
        return paint_chip(painter, content, *cell.chip, selected);
    if (cell.second.isEmpty())
        return paint_text(painter, content, cell.text, first_font(cell), cell.role, column);
    const int upper = line_height(TextStyle::body) - scaled(1);
    const int lower = line_height(TextStyle::second);
    const QRect first(content.left(), content.top() + (content.height() - upper - lower) / 2, content.width(), upper);
    paint_text(painter, first, cell.text, first_font(cell), cell.role, column);
    const TableColumn words = {.alignment = column.alignment};
    paint_text(painter, QRect(content.left(), first.bottom() + 1, content.width(), lower), cell.second,
        text_font(TextStyle::second), Role::text2, words);
}

int table_cell_width(const TableCell& cell, const TableColumn& column)
{
    if (cell.chip)
        return chip_size(*cell.chip).width();
    const int second =
        cell.second.isEmpty() ? 0 : QFontMetrics(text_font(TextStyle::second)).horizontalAdvance(cell.second) + 1;
    return std::max(text_width(cell.text, first_font(cell), column), second);
}

} // namespace quillfern::desktop
