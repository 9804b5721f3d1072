#include "desktop/share_bar.h"

#include "desktop/painters.h"
#include "desktop/tokens.h"
#include "desktop/type.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double bar_height = 10;
constexpr double gap = 2;

/// 45° stripes of our own: the toolkit's hatch pattern has hairlines that vanish on dense displays.
void paint_hatching(QPainter& painter, const QRectF& box)
{
    painter.save();
    painter.setClipRect(box, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(box, color(Role::dangerTint));
    painter.setPen(QPen(color(Role::danger), scaled(2.6)));
    const double step = scaled(5.5);
    for (double x = box.left() - box.height(); x < box.right() + box.height(); x += step)
        painter.drawLine(QPointF(x, box.bottom() + 1), QPointF(x + box.height() + 2, box.top() - 1));
    painter.restore();
}

void paint_pattern(QPainter& painter, const QRectF& box, SharePattern pattern)
{
    switch (pattern) {
    case SharePattern::solid:
        return painter.fillRect(box, color(Role::chart));
    case SharePattern::shortfall:
        return painter.fillRect(box, color(Role::warn));
    case SharePattern::overdue:
        return paint_hatching(painter, box);
    case SharePattern::rest:
        return painter.fillRect(box, color(Role::barBack));
    }
}

} // namespace

void paint_share_swatch(QPainter& painter, const QRect& rect, SharePattern pattern)
{
    QPainterPath outline;
    outline.addRoundedRect(rect, scaled(3), scaled(3));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(outline);
    paint_pattern(painter, rect, pattern);
    painter.restore();
    if (pattern == SharePattern::rest)
        paint_box(painter, rect, scaled(3), {}, color(Role::border));
}

ShareBar::ShareBar(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ShareBar::set_shares(std::vector<Share> shares, const QString& description)
{
    shares_ = std::move(shares);
    setAccessibleDescription(description);
    update();
}

QSize ShareBar::sizeHint() const
{
    return {scaled(120), scaled(bar_height)};
}

void ShareBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(rect(), height() / 2.0, height() / 2.0);
    painter.setClipPath(outline);
    painter.fillRect(rect(), color(Role::barBack));
    const double whole = std::accumulate(shares_.begin(), shares_.end(), 0.0,
        [](double sum, const Share& share) { return sum + std::max(0.0, share.amount); });
    double x = 0;
    for (const Share& share : shares_) {
        if (share.amount <= 0)
            continue;
        const double length = share.amount / whole * width();
        if (x > 0)
            painter.fillRect(QRectF(x - scaled(gap), 0, scaled(gap), height()), color(Role::card));
        paint_pattern(painter, QRectF(x, 0, length - scaled(gap), height()), share.pattern);
        if (share.pattern == SharePattern::rest)
            painter.fillRect(QRectF(x, 0, length, height()), color(Role::barBack));
        x += length;
    }
}

} // namespace quillfern::desktop
