#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

namespace quillfern::app {

/// The corner nearest to the wanted one from which the frame lies in `room`; what is too large begins at the room's
/// own.
QPoint spot_inside(const QRect& wanted, const QRect& room);

/// Where a window's frame goes that opens after another of its size: a step right and down of it. What would leave
/// `room`, the part of the screen that windows can have, slides along its edge, and from the last corner it starts
/// again at the first.
QPoint spot_after(const QRect& before, const QRect& room);

/// Puts a small window that is not shown yet over the middle of `below`, and on the screen as a whole. Without one
/// below it stands where the desktop puts it.
void place_over(QWidget& window, const QWidget* below);

} // namespace quillfern::app
