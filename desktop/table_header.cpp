#include "desktop/table_header.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/table_painting.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

namespace quillfern::desktop {

TableHeader::TableHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setSortIndicatorShown(true);
    setSortIndicatorClearable(true);
    setSortIndicator(-1, Qt::AscendingOrder);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(0);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
}

QSize TableHeader::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), table_head_height()};
}

int TableHeader::last_visible() const
{
    int last = count() - 1;
    while (last > 0 && isSectionHidden(last))
        --last;
    return last;
}

void TableHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    const auto& column = static_cast<const TableModel&>(*model()).columns()[static_cast<std::size_t>(section)];
    const bool sorted = sortIndicatorSection() == section;
    const QFont& font = text_font(TextStyle::secondMedium);
    QRect box = table_content(rect, section == 0, section == last_visible());
    const Role role = sorted || hovered_ == section ? Role::text : Role::text2;
    const int side = scaled(14);
    const int width = QFontMetrics(font).horizontalAdvance(column.title);
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), color(Role::hairline));
    if (sorted) {
        const bool right = column.alignment.testFlag(Qt::AlignRight);
        const int x = right ? box.right() + 1 - width - side - scaled(4) : box.left() + width + scaled(4);
        painter->drawPixmap(x, rect.top() + (rect.height() - side) / 2,
            icon_pixmap(
                sortIndicatorOrder() == Qt::AscendingOrder ? QStringLiteral("arrow-up") : QStringLiteral("arrow-down"),
                Role::text, side, painter->device()->devicePixelRatioF()));
        if (!right)
            box.setWidth(width + 1);
    }
    draw_line(*painter, box, column.title, font, role, column.alignment);
}

bool TableHeader::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Leave) {
        hovered_ = event->type() == QEvent::Leave
            ? -1
            : logicalIndexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        viewport()->update();
    }
    return QHeaderView::viewportEvent(event);
}

} // namespace quillfern::desktop
