#include "app/pages/funder_list_delegate.h"

#include "app/pages/funder_list.h"
#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillfern::app {
namespace {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::text_font;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double row_height = 64;
constexpr double side_padding = 16;
constexpr double gap = 14;

void paint_line(QPainter& painter, const QRect& row, const FunderLine& line)
{
    const int upper = desktop::line_height(TextStyle::bodyStrong) + scaled(2);
    const int lower = desktop::line_height(TextStyle::second);
    QRect box = row.adjusted(scaled(side_padding), (row.height() - upper - lower) / 2, -scaled(side_padding), 0);
    const QString amount = to_qt(line.amount);
    const QString note = to_qt(line.amountNote);
    const int right = std::max(static_cast<int>(std::ceil(desktop::figures_width(amount, text_font(TextStyle::body)))),
        QFontMetrics(text_font(TextStyle::second)).horizontalAdvance(note) + 1);
    const QRect amounts(box.right() + 1 - right, box.top(), right, upper);
    const QRect words(box.left(), box.top(), amounts.left() - scaled(gap) - box.left(), upper);
    const auto below = [upper, lower](const QRect& above) {
        return QRect(above.left(), above.top() + upper, above.width(), lower);
    };
    desktop::draw_line(painter, words, to_qt(line.name), text_font(TextStyle::bodyStrong), Role::text);
    desktop::draw_line(painter, below(words), to_qt(line.line), text_font(TextStyle::second), Role::text2);
    painter.setPen(color(line.amount == no_figure ? Role::text3 : Role::text));
    desktop::draw_figures(painter, amounts, Qt::AlignRight, amount, text_font(TextStyle::body));
    desktop::draw_line(painter, below(amounts), note, text_font(TextStyle::second), Role::text2, Qt::AlignRight);
}

} // namespace

FunderListDelegate::FunderListDelegate(FunderList& list) : QStyledItemDelegate(&list), list_(list) { }

void FunderListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QRect row = option.rect;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setClipRect(row, Qt::IntersectClip);
    if (selected || option.state.testFlag(QStyle::State_MouseOver))
        // The first row lies under the card's round corners.
        desktop::paint_box(*painter, index.row() == 0 ? row.adjusted(0, 0, 0, scaled(20)) : row,
            index.row() == 0 ? scaled(9) : 0, color(selected ? Role::accentTint : Role::cardAlt));
    if (index.row() + 1 < index.model()->rowCount())
        painter->fillRect(QRect(row.left(), row.bottom(), row.width(), 1), color(Role::hairline));
    paint_line(*painter, row, list_.line(index.row()));
    if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange))
        desktop::paint_focus(*painter, row.adjusted(2, 2, -2, -2), scaled(8));
    painter->restore();
}

QSize FunderListDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {0, scaled(row_height)};
}

} // namespace quillfern::app
