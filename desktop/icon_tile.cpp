#include "desktop/icon_tile.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>

#include <utility>

namespace quillfern::desktop {

IconTile::IconTile(QString icon_name, int side, Tone tone, QWidget* parent)
    : QWidget(parent), icon_name_(std::move(icon_name)), tone_(tone)
{
    setFixedSize(side, side);
}

void IconTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    switch (tone_) {
    case Tone::plain:
        return paint_icon_tile(painter, rect(), icon_name_, Role::neutral, Role::text2);
    case Tone::accent:
        return paint_icon_tile(painter, rect(), icon_name_, Role::accentTint, Role::accent);
    case Tone::warn:
        return paint_icon_tile(painter, rect(), icon_name_, Role::warnTint, Role::warn);
    case Tone::danger:
        return paint_icon_tile(painter, rect(), icon_name_, Role::dangerTint, Role::danger);
    }
}

} // namespace quillfern::desktop
