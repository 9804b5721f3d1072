#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/style.h"
#include "desktop/type.h"

#include <QAction>
#include <QFontMetrics>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>

#include <algorithm>

namespace quillfern::desktop::style {
namespace {

constexpr double item_height = 28;
constexpr double least_item_height = 21; ///< the line of text and a little air
constexpr double separator_height = 9;
constexpr double check_room = 30; ///< left of the title, for a check mark
constexpr double shortcut_gap = 32;

struct MenuText {
    QString title;
    QString shortcut;
};

/// The toolkit hands both over in one text, with a tab between.
MenuText split(const QString& text)
{
    const qsizetype tab = text.indexOf(QLatin1Char('\t'));
    return tab < 0 ? MenuText{text, {}} : MenuText{text.left(tab), text.mid(tab + 1)};
}

int width_of(const QString& text)
{
    return QFontMetrics(text_font(TextStyle::body)).size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width();
}

void draw_text(QPainter& painter, const QRect& box, const QString& text, Role role, Qt::Alignment alignment)
{
    painter.setFont(text_font(TextStyle::body));
    painter.setPen(color(role));
    painter.drawText(
        box, static_cast<int>(alignment | Qt::AlignVCenter | Qt::TextHideMnemonic | Qt::TextSingleLine), text);
}

void draw_check(const QStyleOptionMenuItem& option, QPainter& painter, Role role)
{
    const int side = scaled(15);
    const QPoint corner(option.rect.left() + scaled(9), option.rect.top() + (option.rect.height() - side) / 2);
    painter.drawPixmap(corner, icon_pixmap(QStringLiteral("check"), role, side, painter.device()->devicePixelRatioF()));
}

/// The item opens a menu of its own.
void draw_arrow(const QStyleOptionMenuItem& option, QPainter& painter, Role role)
{
    const int side = scaled(15);
    const QPoint corner(option.rect.right() - scaled(16) - side + scaled(4), option.rect.center().y() - side / 2);
    painter.drawPixmap(
        corner, icon_pixmap(QStringLiteral("chevron-right"), role, side, painter.device()->devicePixelRatioF()));
}

/// As designed, and lower where a long menu would otherwise not fit the screen: what has to be scrolled to is not
/// found.
int row_height(const QWidget* menu)
{
    if (!qobject_cast<const QMenu*>(menu))
        return scaled(item_height);
    int rows = 0;
    int room = menu->screen()->availableGeometry().height() - 2 * scaled(6);
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator() && action->isVisible())
            room -= scaled(separator_height);
        else if (action->isVisible())
            ++rows;
    }
    return rows == 0 ? scaled(item_height) : std::clamp(room / rows, scaled(least_item_height), scaled(item_height));
}

} // namespace

void draw_menu_bar_item(const QStyleOptionMenuItem& option, QPainter& painter)
{
    painter.fillRect(option.rect, color(Role::window));
    const bool open = option.state.testFlag(QStyle::State_Sunken);
    if (open || option.state.testFlag(QStyle::State_Selected))
        paint_box(
            painter, option.rect.adjusted(0, 1, 0, -1), scaled(6), color(open ? Role::hairline2 : Role::hairline));
    draw_text(painter, option.rect, option.text, Role::text, Qt::AlignHCenter);
}

QSize menu_bar_item_size(const QStyleOptionMenuItem& option)
{
    return {width_of(option.text) + 2 * scaled(9), scaled(28)};
}

void draw_menu_item(const QStyleOptionMenuItem& option, QPainter& painter)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        const int y = option.rect.center().y();
        painter.fillRect(
            option.rect.left() + scaled(10), y, option.rect.width() - 2 * scaled(10), 1, color(Role::hairline));
        return;
    }
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool chosen = enabled && option.state.testFlag(QStyle::State_Selected);
    const Role role = !enabled ? Role::text3 : chosen ? Role::onAccentTint : Role::text;
    if (chosen)
        paint_box(painter, option.rect.adjusted(scaled(5), 0, -scaled(5), 0), scaled(6), color(Role::accentTint));
    if (option.checked)
        draw_check(option, painter, role);
    const MenuText text = split(option.text);
    const QRect box = option.rect.adjusted(scaled(check_room), 0, -scaled(16), 0);
    draw_text(painter, box, text.title, role, Qt::AlignLeft);
    draw_text(painter, box, text.shortcut, chosen ? role : Role::text3, Qt::AlignRight);
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
        draw_arrow(option, painter, role);
}

QSize menu_item_size(const QStyleOptionMenuItem& option, const QWidget* menu)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return {scaled(20), scaled(separator_height)};
    const MenuText text = split(option.text);
    const int shortcut = text.shortcut.isEmpty() ? 0 : scaled(shortcut_gap) + width_of(text.shortcut);
    return {scaled(check_room) + width_of(text.title) + shortcut + scaled(16), row_height(menu)};
}

void draw_scroll_bar(const QStyleOptionSlider& option, const QRect& thumb, QPainter& painter)
{
    if (option.maximum <= option.minimum)
        return;
    const int inset = scaled(3);
    const bool upright = option.orientation == Qt::Vertical;
    const QRect bar = upright ? thumb.adjusted(inset, 2, -inset, -2) : thumb.adjusted(2, inset, -2, -inset);
    const bool active = (option.activeSubControls & QStyle::SC_ScrollBarSlider)
        && option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    paint_box(
        painter, bar, std::min(bar.width(), bar.height()) / 2.0, color(active ? Role::border : Role::scrollThumb));
}

} // namespace quillfern::desktop::style
