#include "app/window_spot.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quillfern::app {
namespace {

constexpr int step = 28; ///< the height of a title bar: the one before stays in sight

/// The corner nearest to `wanted` from which `size` lies in `room`; what is too large begins at the room's own.
QPoint inside(const QPoint& wanted, const QSize& size, const QRect& room)
{
    const int right = room.left() + room.width() - size.width();
    const int bottom = room.top() + room.height() - size.height();
    return {std::max(room.left(), std::min(wanted.x(), right)), std::max(room.top(), std::min(wanted.y(), bottom))};
}

} // namespace

QPoint spot_after(const QRect& before, const QRect& room)
{
    const QPoint next = inside(before.topLeft() + QPoint(step, step), before.size(), room);
    return next == before.topLeft() ? room.topLeft() : next;
}

void place_over(QWidget& window, const QWidget* below)
{
    if (!below)
        return;
    QRect spot(QPoint(), window.size());
    spot.moveCenter(below->frameGeometry().center());
    window.move(inside(spot.topLeft(), spot.size(), below->screen()->availableGeometry()));
}

} // namespace quillfern::app
