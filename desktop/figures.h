#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace quillfern::desktop {

/// Text whose digits all take the same room, so that amounts and dates line up under each other.
///
/// Inter's digits differ in width, and the toolkit cannot switch on the font's own tabular figures; each digit is
/// therefore set in the middle of a cell as wide as the widest digit. Other characters keep their width.
double figures_width(const QString& text, const QFont& font);

/// Draws with the painter's pen, on one line, aligned in `box`.
void draw_figures(
    QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text, const QFont& font);

} // namespace quillfern::desktop
