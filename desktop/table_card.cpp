#include "desktop/table_card.h"

#include "desktop/painters.h"
#include "desktop/table_painting.h"
#include "desktop/table_totals.h"
#include "desktop/type.h"

#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double radius = 10;

/// A part of the card's inside, from its upper or to its lower round corners.
void paint_part(QPainter& painter, const QRect& card, int top, int height, Role role)
{
    painter.save();
    painter.setClipRect(QRect(card.left(), top, card.width(), height));
    paint_box(painter, card.adjusted(1, 1, -1, -1), scaled(radius) - 1, color(role));
    painter.restore();
}

} // namespace

TableCard::TableCard(std::vector<TableColumn> columns, QWidget* parent)
    : QWidget(parent), view_(new TableView(std::move(columns), this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setFocusProxy(view_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(view_);
}

void TableCard::set_totals(std::vector<TableCell> cells, const QString& spoken)
{
    if (!totals_) {
        totals_ = new TableTotals(*view_, this);
        layout()->addWidget(totals_);
        view_->set_ends_card(false);
    }
    totals_->set_cells(std::move(cells), spoken);
}

void TableCard::set_note(const QString& note)
{
    note_ = note;
    layout()->setContentsMargins(1, 1, 1, note.isEmpty() ? 1 : table_row_height());
    update();
}

void TableCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paint_box(painter, rect(), scaled(radius), color(Role::card));
    paint_part(painter, rect(), 0, table_head_height() + 1, Role::cardAlt);
    if (totals_)
        paint_part(painter, rect(), totals_->y(), totals_->height() + 1, Role::cardAlt);
    paint_box(painter, rect(), scaled(radius), {}, color(Role::hairline));
    if (!note_.isEmpty()) {
        const QRect row(0, height() - table_row_height(), width(), table_row_height());
        draw_line(painter, table_content(row, true, true), note_, text_font(TextStyle::body), Role::text3);
    }
}

} // namespace quillfern::desktop
