#include "desktop/table_totals.h"

#include "desktop/table_painting.h"
#include "desktop/table_view.h"
#include "desktop/type.h"

#include <QHeaderView>
#include <QPainter>

#include <utility>

namespace quillfern::desktop {

TableTotals::TableTotals(const TableView& view, QWidget* parent) : QWidget(parent), view_(view)
{
    setFixedHeight(table_row_height());
    connect(&view, &TableView::columns_changed, this, QOverload<>::of(&QWidget::update));
}

void TableTotals::set_cells(std::vector<TableCell> cells, const QString& spoken)
{
    cells_ = std::move(cells);
    setAccessibleName(spoken);
    update();
}

void TableTotals::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, color(Role::border));
    const QHeaderView& head = *view_.horizontalHeader();
    for (int column = 0; column < static_cast<int>(cells_.size()); ++column) {
        const TableCell& cell = cells_[static_cast<std::size_t>(column)];
        if (cell.text.isEmpty() || head.isSectionHidden(column))
            continue;
        const QRect place(head.sectionViewportPosition(column), 0, head.sectionSize(column), height());
        const bool last = place.right() >= view_.viewport()->width() - 1;
        paint_table_cell(painter, table_content(place, column == 0, last), cell,
            view_.table().columns()[static_cast<std::size_t>(column)], false);
    }
}

} // namespace quillfern::desktop
