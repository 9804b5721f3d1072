#include "desktop/painters.h"

#include "desktop/icons.h"
#include "desktop/type.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillfern::desktop {
namespace {

constexpr double card_radius = 10;

bool has(CardEdge edge, CardEdge part)
{
    return (static_cast<int>(edge) & static_cast<int>(part)) != 0;
}

/// `box` with its upper, its lower or all corners round.
QPainterPath card_outline(const QRectF& box, CardEdge edge)
{
    const double r = scaled(card_radius);
    const double top = has(edge, CardEdge::top) ? r : 0;
    const double bottom = has(edge, CardEdge::bottom) ? r : 0;
    QPainterPath path;
    path.moveTo(box.left(), box.bottom() - bottom);
    path.lineTo(box.left(), box.top() + top);
    if (top > 0)
        path.arcTo(box.left(), box.top(), 2 * r, 2 * r, 180, -90);
    path.lineTo(box.right() - top, box.top());
    if (top > 0)
        path.arcTo(box.right() - 2 * r, box.top(), 2 * r, 2 * r, 90, -90);
    path.lineTo(box.right(), box.bottom() - bottom);
    if (bottom > 0)
        path.arcTo(box.right() - 2 * r, box.bottom() - 2 * r, 2 * r, 2 * r, 0, -90);
    path.lineTo(box.left() + bottom, box.bottom());
    if (bottom > 0)
        path.arcTo(box.left(), box.bottom() - 2 * r, 2 * r, 2 * r, 270, -90);
    path.closeSubpath();
    return path;
}

} // namespace

QPen line_pen(Role role, double width)
{
    return QPen(color(role), width);
}

void paint_box(QPainter& painter, const QRectF& box, double radius, const QColor& fill, const QColor& line)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.setPen(line.isValid() ? QPen(line, 1) : QPen(Qt::NoPen));
    const double inset = line.isValid() ? 0.5 : 0;
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter.restore();
}

void paint_focus(QPainter& painter, const QRectF& box, double radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line_pen(Role::accent, 2));
    painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    painter.restore();
}

void paint_card_row(QPainter& painter, const QRect& row, CardEdge edge, Role fill)
{
    painter.save();
    painter.setClipRect(row);
    painter.setRenderHint(QPainter::Antialiasing);
    // The frame of an open end lies outside the row and is clipped away.
    const double open = 4;
    QRectF box = QRectF(row).adjusted(0.5, 0.5, -0.5, -0.5);
    box.adjust(0, has(edge, CardEdge::top) ? 0 : -open, 0, has(edge, CardEdge::bottom) ? 0 : open);
    painter.setBrush(color(fill));
    painter.setPen(line_pen(Role::hairline));
    painter.drawPath(card_outline(box, edge));
    if (!has(edge, CardEdge::bottom))
        painter.drawLine(QPointF(row.left() + 1, row.bottom() + 0.5), QPointF(row.right(), row.bottom() + 0.5));
    painter.restore();
}

void paint_icon_tile(QPainter& painter, const QRect& rect, const QString& icon_name, Role tile, Role line)
{
    const int side = scaled(18);
    paint_box(painter, rect, scaled(8), color(tile));
    const QPixmap picture = icon_pixmap(icon_name, line, side, painter.device()->devicePixelRatioF());
    painter.drawPixmap(rect.left() + (rect.width() - side) / 2, rect.top() + (rect.height() - side) / 2, picture);
}

QString badge_text(int count)
{
    return count > 99 ? QStringLiteral("99+") : QString::number(count);
}

int paint_badge(QPainter& painter, const QRect& area, int count, bool alarming)
{
    const QString text = badge_text(count);
    const QFont& type = text_font(TextStyle::captionStrong);
    const int width = std::max(scaled(24), static_cast<int>(QFontMetricsF(type).horizontalAdvance(text)) + scaled(14));
    const int height = scaled(20);
    const QRect pill(area.right() + 1 - width, area.top() + (area.height() - height) / 2, width, height);
    paint_box(painter, pill, height / 2.0, color(alarming ? Role::dangerTint : Role::badge));
    draw_line(painter, pill, text, type, alarming ? Role::onDangerTint : Role::text2, Qt::AlignHCenter);
    return width;
}

void draw_line(
    QPainter& painter, const QRect& box, const QString& text, const QFont& font, Role role, Qt::Alignment alignment)
{
    const QFontMetricsF metrics(font);
    // Measuring costs as much as drawing. Hardly a letter is wider than high, so a short text in a wide box just fits.
    const bool may_not_fit = static_cast<double>(text.size()) * metrics.height() > box.width();
    const QString fitting = may_not_fit ? metrics.elidedText(text, Qt::ElideRight, box.width()) : text;
    double x = box.left();
    if (alignment & (Qt::AlignRight | Qt::AlignHCenter)) {
        const double spare = box.width() - metrics.horizontalAdvance(fitting);
        x += alignment & Qt::AlignRight ? spare : spare / 2;
    }
    const double baseline = QRectF(box).center().y() + (metrics.ascent() - metrics.descent()) / 2;
    painter.setFont(font);
    painter.setPen(color(role));
    painter.drawText(QPointF(x, baseline), fitting);
}

} // namespace quillfern::desktop
