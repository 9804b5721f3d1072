#include "app/pages/agenda_delegate.h"

#include "app/pages/agenda_model.h"
#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QListView>
#include <QPainter>
#include <QToolTip>

namespace quillfern::app {
namespace {

using desktop::CardEdge;
using desktop::Role;
using desktop::scaled;
using desktop::text_font;
using desktop::TextStyle;
using desktop::to_qt;
using grants::Bucket;

constexpr double heading_height = 34;
constexpr double row_height = 54;
constexpr double left_padding = 15;
constexpr double right_padding = 17;
constexpr double column_gap = 14;
constexpr double date_width = 58;
constexpr double tile_side = 34;
constexpr double amount_width = 84;
constexpr double relative_width = 92;

/// The room that the row's button takes, if it has one.
int action_width(const QWidget* view, const QModelIndex& index)
{
    const QWidget* button = qobject_cast<const QListView*>(view)->indexWidget(index);
    return button ? button->width() : 0;
}

/// Where the parts of a row stand. The words take what the fixed columns and the button leave, and the room of an
/// amount that the row does not have.
struct RowBoxes {
    QRect date;
    QRect tile;
    QRect words;
    QRect action;
    QRect amount;
    QRect relative;

    RowBoxes(const QRect& row, bool has_amount, int action_width)
    {
        const auto column = [&row](int left, int width) { return QRect(left, row.top(), width, row.height()); };
        const int gap = scaled(column_gap);
        date = column(row.left() + scaled(left_padding), scaled(date_width));
        const int side = scaled(tile_side);
        tile = QRect(date.right() + 1 + gap, row.top() + (row.height() - side) / 2, side, side);
        relative = column(row.right() + 1 - scaled(right_padding) - scaled(relative_width), scaled(relative_width));
        amount = column(relative.left() - gap - scaled(amount_width), scaled(amount_width));
        const int right_columns = has_amount ? amount.left() : relative.left();
        action = column(right_columns - gap - action_width, action_width);
        const int words_left = tile.right() + 1 + gap;
        words = column(words_left, (action_width > 0 ? action.left() : right_columns) - gap - words_left);
    }
};

CardEdge edge_of(const AgendaCell& cell)
{
    return static_cast<CardEdge>(
        (cell.first ? static_cast<int>(CardEdge::top) : 0) | (cell.last ? static_cast<int>(CardEdge::bottom) : 0));
}

/// An upper and a lower line of text, together in the middle of the box.
struct TwoLines {
    QRect upper;
    QRect lower;

    TwoLines(const QRect& box, TextStyle above, TextStyle below)
    {
        const int height = desktop::line_height(above) + desktop::line_height(below);
        upper = QRect(box.left(), box.top() + (box.height() - height) / 2, box.width(), desktop::line_height(above));
        lower = QRect(box.left(), upper.bottom() + 1, box.width(), desktop::line_height(below));
    }
};

Role row_fill(const QStyleOptionViewItem& option)
{
    if (option.state.testFlag(QStyle::State_Selected))
        return Role::accentTint;
    return option.state.testFlag(QStyle::State_MouseOver) ? Role::cardAlt : Role::card;
}

void paint_date(QPainter& painter, const QRect& box, const AgendaRow& row)
{
    const TwoLines lines(box, TextStyle::second, TextStyle::bodyStrong);
    desktop::draw_line(painter, lines.upper.adjusted(0, 0, scaled(column_gap), 0), to_qt(row.weekday),
        text_font(TextStyle::second), Role::text2);
    painter.setPen(desktop::color(Role::text));
    desktop::draw_figures(painter, lines.lower, Qt::AlignLeft, to_qt(row.date), text_font(TextStyle::bodyStrong));
}

void paint_words(QPainter& painter, const QRect& box, const AgendaRow& row)
{
    const TwoLines lines(box, TextStyle::bodyStrong, TextStyle::second);
    desktop::draw_line(painter, lines.upper, to_qt(row.title), text_font(TextStyle::bodyStrong), Role::text);
    desktop::draw_line(painter, lines.lower, to_qt(row.line), text_font(TextStyle::second), Role::text2);
}

void paint_relative(QPainter& painter, const QRect& box, const AgendaCell& cell)
{
    const bool near = cell.bucket == Bucket::overdue || cell.bucket == Bucket::thisWeek;
    const Role role = cell.bucket == Bucket::overdue ? Role::danger
        : cell.bucket == Bucket::thisWeek            ? Role::text
                                                     : Role::text2;
    painter.setPen(desktop::color(role));
    desktop::draw_figures(painter, box, Qt::AlignRight, to_qt(cell.row.relative),
        text_font(near ? TextStyle::secondStrong : TextStyle::second));
}

void paint_cell(QPainter& painter, const QStyleOptionViewItem& option, const AgendaCell& cell, int action_width)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool overdue = cell.bucket == Bucket::overdue;
    desktop::paint_card_row(painter, option.rect, edge_of(cell), row_fill(option));
    const RowBoxes boxes(option.rect, !cell.row.amount.empty(), action_width);
    paint_date(painter, boxes.date, cell.row);
    const Role tile = selected ? Role::card : overdue ? Role::dangerTint : Role::neutral;
    desktop::paint_icon_tile(painter, boxes.tile, to_qt(cell.row.icon), tile, overdue ? Role::danger : Role::text2);
    paint_words(painter, boxes.words, cell.row);
    painter.setPen(desktop::color(Role::text));
    desktop::draw_figures(painter, boxes.amount, Qt::AlignRight, to_qt(cell.row.amount), text_font(TextStyle::body));
    paint_relative(painter, boxes.relative, cell);
    if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange))
        desktop::paint_focus(painter, option.rect.adjusted(2, 2, -2, -2), scaled(8));
}

void paint_heading(QPainter& painter, const QRect& box, const AgendaHeading& heading)
{
    const QFont& type = text_font(TextStyle::heading);
    const QString title = to_qt(heading.title);
    const QRect line = box.adjusted(0, scaled(2), 0, 0);
    desktop::draw_line(painter, line, title, type, heading.bucket == Bucket::overdue ? Role::danger : Role::text);
    const int after_title = QFontMetrics(type).horizontalAdvance(title) + scaled(10);
    desktop::draw_line(painter, line.adjusted(after_title, 0, 0, 0), QString::number(heading.count),
        text_font(TextStyle::body), Role::text3);
}

} // namespace

int agenda_heading_height()
{
    return scaled(heading_height);
}

void AgendaDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& model = static_cast<const AgendaModel&>(*index.model());
    const AgendaModel::Line& line = model.line(index.row());
    if (const auto* heading = std::get_if<AgendaHeading>(&line))
        paint_heading(*painter, option.rect, *heading);
    else
        paint_cell(*painter, option, *std::get_if<AgendaCell>(&line), action_width(option.widget, index));
}

QSize AgendaDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const bool is_cell = index.flags().testFlag(Qt::ItemIsSelectable);
    return {0, is_cell ? scaled(row_height) : agenda_heading_height()};
}

void AgendaDelegate::updateEditorGeometry(
    QWidget* action, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& model = static_cast<const AgendaModel&>(*index.model());
    const AgendaRow& row = std::get_if<AgendaCell>(&model.line(index.row()))->row;
    const QRect box = RowBoxes(option.rect, !row.amount.empty(), action->width()).action;
    action->move(box.left(), box.top() + (box.height() - action->height()) / 2);
}

/// Words that did not fit are told in full.
bool AgendaDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.flags().testFlag(Qt::ItemIsSelectable))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const auto& model = static_cast<const AgendaModel&>(*index.model());
    const AgendaRow& row = std::get_if<AgendaCell>(&model.line(index.row()))->row;
    const int room = RowBoxes(option.rect, !row.amount.empty(), action_width(view, index)).words.width();
    const auto elided = [room](const std::string& text, TextStyle style) {
        return QFontMetrics(text_font(style)).horizontalAdvance(to_qt(text)) > room;
    };
    if (elided(row.title, TextStyle::bodyStrong) || elided(row.line, TextStyle::second))
        QToolTip::showText(event->globalPos(), to_qt(row.title + '\n' + row.line), view);
    else
        QToolTip::hideText();
    return true;
}

} // namespace quillfern::app
