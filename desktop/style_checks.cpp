#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/style.h"
#include "desktop/type.h"

#include <QPainter>
#include <QStyleOption>

namespace quillfern::desktop::style {

void draw_check_box(const QStyleOption& option, QPainter& painter)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool checked = option.state.testFlag(QStyle::State_On);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const Role fill = !enabled ? Role::cardAlt
        : checked              ? (hovered ? Role::accentHover : Role::accentFill)
                               : (hovered ? Role::neutral : Role::card);
    const Role line = !enabled ? Role::hairline2 : checked ? fill : Role::border;
    paint_box(painter, option.rect, scaled(5), color(fill), color(line));
    if (!checked)
        return;
    const int side = scaled(15);
    const QPoint corner(
        option.rect.left() + (option.rect.width() - side) / 2, option.rect.top() + (option.rect.height() - side) / 2);
    painter.drawPixmap(corner,
        icon_pixmap(QStringLiteral("check"), enabled ? Role::onAccent : Role::text3, side,
            painter.device()->devicePixelRatioF()));
}

} // namespace quillfern::desktop::style
