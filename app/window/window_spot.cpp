#include "app/window/window_spot.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quillfern::app {
namespace {

constexpr int step = 28; ///< the height of a title bar: the one before stays in sight

} // namespace

QPoint spot_inside(const QRect& wanted, const QRect& room)
{
    const int right = room.left() + room.width() - wanted.width();
    const int bottom = room.top() + room.height() - wanted.height();
    return {
        std::max(room.left(), std::min(wanted.left(), right)), std::max(room.top(), std::min(wanted.top(), bottom))};
}

QPoint spot_after(const QRect& before, const QRect& room)
{
    const QPoint next = spot_inside(before.translated(step, step), room);
    return next == before.topLeft() ? room.topLeft() : next;
}

void place_over(QWidget& window, const QWidget* below)
{
    if (!below)
        return;
    QRect spot(QPoint(), window.size());
    spot.moveCenter(below->frameGeometry().center());
    window.move(spot_inside(spot, below->screen()->availableGeometry()));
}

} // namespace quillfern::app
