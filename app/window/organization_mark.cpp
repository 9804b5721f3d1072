#include "app/window/organization_mark.h"

#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;

constexpr double logo_side = 38;
constexpr double logo_left = 18;
constexpr double logo_top = 16;
constexpr double name_gap = 11;
constexpr double name_pitch = 18;
constexpr int name_lines = 2;

/// The name broken into as many lines as fit; the last one is elided when more would follow.
QStringList broken(const QString& name, const QFont& type, int width)
{
    QStringList lines;
    QTextLayout layout(name, type);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == name_lines) {
            lines.append(QFontMetrics(type).elidedText(name.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(name.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

void paint_no_logo(QPainter& painter, const QRect& circle)
{
    QPen dashes = desktop::line_pen(Role::border);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(circle).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

OrganizationMark::OrganizationMark(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(scaled(logo_top + logo_side + 15));
}

void OrganizationMark::set_name(const QString& name)
{
    name_ = name;
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void OrganizationMark::set_logo(const QPixmap& logo)
{
    logo_ = logo;
    update();
}

void OrganizationMark::set_logo_only(bool only)
{
    logo_only_ = only;
    update();
}

void OrganizationMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int side = scaled(logo_side);
    const int left = logo_only_ ? (width() - side) / 2 : scaled(logo_left);
    const QRect circle(left, scaled(logo_top), side, side);
    if (logo_.isNull()) {
        paint_no_logo(painter, circle);
    } else {
        QPainterPath outline;
        outline.addEllipse(circle);
        painter.save();
        painter.setClipPath(outline);
        painter.drawPixmap(circle, logo_);
        painter.restore();
    }
    if (logo_only_)
        return;
    const QFont& type = desktop::text_font(desktop::TextStyle::bodyStrong);
    const int text_left = circle.right() + 1 + scaled(name_gap);
    const int room = width() - text_left - scaled(19);
    const QStringList lines = broken(name_, type, room);
    const int pitch = scaled(name_pitch);
    int y = circle.center().y() + 1 - static_cast<int>(lines.size()) * pitch / 2;
    for (const QString& line : lines) {
        desktop::draw_line(painter, QRect(text_left, y, room, pitch), line, type, Role::text);
        y += pitch;
    }
}

} // namespace quillfern::app
