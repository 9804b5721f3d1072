#pragma once

#include "desktop/table_model.h"

#include <QRect>

class QPainter;

/// How the parts of a table are set, shared by its head, its cells and its totals.
namespace quillfern::desktop {

/// The room for content within a cell or head. Cells keep 14 at each side, so that 28 lie between an amount and the
/// column after it; at the table's ends it is a little more.
QRect table_content(const QRect& cell, bool first, bool last);

int table_head_height();
int table_row_height();

/// One or two lines of text, or a chip, in the middle of the content's height.
void paint_table_cell(
    QPainter& painter, const QRect& content, const TableCell& cell, const TableColumn& column, bool selected);

/// How wide the cell's content would like to be.
int table_cell_width(const TableCell& cell, const TableColumn& column);

} // namespace quillfern::desktop
