#pragma once

#include "desktop/tokens.h"

#include <QPen>
#include <QRect>
#include <QString>

class QPainter;

namespace quillfern::desktop {

/// Which corners of a row are round, when rows form a card together.
enum class CardEdge { none = 0, top = 1, bottom = 2, both = 3 };

/// A one-pixel line in the colour of a role.
QPen line_pen(Role role, double width = 1);

/// A filled rounded box; with `line`, framed by one pixel inside it.
void paint_box(QPainter& painter, const QRectF& box, double radius, const QColor& fill, const QColor& line = {});

/// The frame of keyboard focus: two pixels, inside `box`.
void paint_focus(QPainter& painter, const QRectF& box, double radius);

/// One row of a card: its fill, the card's frame at the sides and at the round ends, and the hairline to the next row.
void paint_card_row(QPainter& painter, const QRect& row, CardEdge edge, Role fill);

/// A square of `rect`'s height with an icon in its middle.
void paint_icon_tile(QPainter& painter, const QRect& rect, const QString& icon_name, Role tile, Role line);

/// A count in a pill, right-aligned and centred in `area`; over 99 it reads "99+". Returns the pill's width.
int paint_badge(QPainter& painter, const QRect& area, int count, bool alarming);
QString badge_text(int count);

/// Plain text in one line, elided at the right, centred in the box's height.
void draw_line(QPainter& painter, const QRect& box, const QString& text, const QFont& font, Role role,
    Qt::Alignment alignment = Qt::AlignLeft);

} // namespace quillfern::desktop
