#include "app/window/sidebar_delegate.h"

#include "app/window/sidebar_model.h"
#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QPainter>

namespace quillfern::app {
namespace {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::text_font;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double row_height = 36;
constexpr double two_line_height = 52;
constexpr double rule_height = 18;
constexpr double row_gap = 1;
constexpr double icon_side = 18;
constexpr double side_padding = 10;
constexpr double icon_gap = 11;

void paint_rule(QPainter& painter, const QRect& box)
{
    const int inset = scaled(8);
    painter.fillRect(box.left() + inset, box.center().y(), box.width() - 2 * inset, 1, color(Role::hairline2));
}

void paint_ground(QPainter& painter, const QRect& box, const QStyleOptionViewItem& option)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    if (option.state.testFlag(QStyle::State_Selected)) {
        desktop::paint_box(painter, box, scaled(7), color(Role::accentTint2));
        const int height = scaled(18);
        const QRect bar(box.left(), box.top() + (box.height() - height) / 2, scaled(3), height);
        desktop::paint_box(painter, bar, 1.5, color(Role::accent));
    } else if (enabled && option.state.testFlag(QStyle::State_MouseOver)) {
        desktop::paint_box(painter, box, scaled(7), color(Role::hairline2));
    }
    if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange))
        desktop::paint_focus(painter, box, scaled(7));
}

Role icon_role(const QStyleOptionViewItem& option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return Role::text3;
    return option.state.testFlag(QStyle::State_Selected) ? Role::accent : Role::text2;
}

void paint_icon(QPainter& painter, const QPoint& corner, const SidebarRow& row, Role role)
{
    painter.drawPixmap(
        corner, desktop::icon_pixmap(to_qt(row.icon), role, scaled(icon_side), painter.device()->devicePixelRatioF()));
}

void paint_words(QPainter& painter, const QRect& box, const QStyleOptionViewItem& option, const SidebarRow& row)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const Role role = !enabled ? Role::text3 : selected ? Role::onAccentTint : Role::text;
    const QFont& type = text_font(selected ? TextStyle::bodyStrong : TextStyle::body);
    if (row.second.empty())
        return desktop::draw_line(painter, box, to_qt(row.label), type, role);
    const int upper = scaled(19);
    const int lower = desktop::line_height(TextStyle::caption);
    const QRect above(box.left(), box.top() + (box.height() - upper - lower) / 2, box.width(), upper);
    desktop::draw_line(painter, above, to_qt(row.label), type, role);
    desktop::draw_line(painter, QRect(box.left(), above.bottom() + 1, box.width(), lower), to_qt(row.second),
        text_font(TextStyle::caption), Role::text3);
}

void paint_strip_row(QPainter& painter, const QRect& box, const SidebarRow& row, Role role)
{
    const int side = scaled(icon_side);
    const QPoint corner(box.left() + (box.width() - side) / 2, box.top() + (box.height() - side) / 2);
    paint_icon(painter, corner, row, role);
    if (row.badge == 0)
        return;
    const int dot = scaled(8);
    const QRect spot(corner.x() + side - dot / 2, corner.y() - dot / 2, dot, dot);
    desktop::paint_box(painter, spot, dot / 2.0, color(row.alarming ? Role::danger : Role::text3));
}

void paint_full_row(QPainter& painter, const QRect& box, const QStyleOptionViewItem& option, const SidebarRow& row)
{
    const int side = scaled(icon_side);
    const QPoint corner(box.left() + scaled(side_padding), box.top() + (box.height() - side) / 2);
    paint_icon(painter, corner, row, icon_role(option));
    QRect words = box.adjusted(scaled(side_padding) + side + scaled(icon_gap), 0, -scaled(side_padding), 0);
    if (row.badge > 0)
        words.setRight(words.right() - desktop::paint_badge(painter, words, row.badge, row.alarming) - scaled(6));
    paint_words(painter, words, option, row);
}

} // namespace

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& model = static_cast<const SidebarModel&>(*index.model());
    const std::optional<SidebarRow>& row = model.line(index.row());
    if (!row)
        return paint_rule(*painter, option.rect);
    const QRect box = option.rect.adjusted(0, 0, 0, -scaled(row_gap));
    paint_ground(*painter, box, option);
    if (strip_)
        paint_strip_row(*painter, box, *row, icon_role(option));
    else
        paint_full_row(*painter, box, option, *row);
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const std::optional<SidebarRow>& row = static_cast<const SidebarModel&>(*index.model()).line(index.row());
    if (!row)
        return {0, scaled(rule_height)};
    const double height = !strip_ && !row->second.empty() ? two_line_height : row_height;
    return {0, scaled(height) + scaled(row_gap)};
}

} // namespace quillfern::app
