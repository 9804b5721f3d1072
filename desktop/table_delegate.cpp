#include "desktop/table_delegate.h"

#include "desktop/painters.h"
#include "desktop/table_painting.h"
#include "desktop/table_view.h"
#include "desktop/type.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace quillfern::desktop {

TableDelegate::TableDelegate(TableView& view) : QStyledItemDelegate(&view), view_(view) { }

QRect TableDelegate::content(const QRect& cell, int column) const
{
    const bool last = cell.right() >= view_.viewport()->width() - 1;
    return table_content(cell, column == 0, last);
}

/// The part of the row's fill, hairline and focus frame that lies in this cell.
void TableDelegate::paint_row_part(QPainter& painter, const QStyleOptionViewItem& option, int row) const
{
    const QRect cell = option.rect;
    const QRect whole(0, cell.top(), view_.viewport()->width(), cell.height());
    const bool last = row == view_.table().rowCount() - 1 && view_.ends_card();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter.setClipRect(cell, Qt::IntersectClip);
    if (selected || row == view_.hovered_row())
        paint_box(painter, whole.adjusted(0, last ? -scaled(20) : 0, 0, 0), last ? scaled(9) : 0,
            color(selected ? Role::accentTint : Role::cardAlt));
    if (!last)
        painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), color(Role::hairline));
    const bool focused = view_.hasFocus() && view_.currentIndex().row() == row
        && option.state.testFlag(QStyle::State_KeyboardFocusChange);
    if (focused)
        paint_focus(painter, whole.adjusted(2, 2, -2, -2), scaled(8));
}

void TableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    paint_row_part(*painter, option, index.row());
    const TableModel& table = view_.table();
    paint_table_cell(*painter, content(option.rect, index.column()).adjusted(0, 0, 0, -1), table.cell(index),
        table.columns()[static_cast<std::size_t>(index.column())], option.state.testFlag(QStyle::State_Selected));
    painter->restore();
}

QSize TableDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {0, table_row_height()};
}

/// Words that did not fit are told in full.
bool TableDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const TableCell& cell = view_.table().cell(index);
    const TableColumn& column = view_.table().columns()[static_cast<std::size_t>(index.column())];
    const int room = content(option.rect, index.column()).width();
    if (table_cell_width(cell, column) <= room)
        QToolTip::hideText();
    else
        QToolTip::showText(
            event->globalPos(), cell.second.isEmpty() ? cell.text : cell.text + QLatin1Char('\n') + cell.second, view);
    return true;
}

} // namespace quillfern::desktop
