#include "desktop/surface.h"

#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>

namespace quillfern::desktop {

Surface::Surface(Role fill, QWidget* parent) : QWidget(parent), fill_(fill)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // so that nothing is painted underneath
}

void Surface::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), color(fill_));
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paint_box(painter, rect(), scaled(10), color(Role::card), color(Role::hairline));
}

} // namespace quillfern::desktop
