#include "desktop/figures.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QVarLengthArray>

#include <algorithm>

namespace quillfern::desktop {
namespace {

bool is_figure(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// A page draws hundreds of figures in a handful of fonts, so each font's digits are measured once.
double cell_width(const QFont& font, const QFontMetricsF& metrics)
{
    static QHash<QFont, double> widths;
    const auto known = widths.constFind(font);
    if (known != widths.constEnd())
        return *known;
    double width = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        width = std::max(width, metrics.horizontalAdvance(QLatin1Char(digit)));
    widths.insert(font, width);
    return width;
}

struct Piece {
    QString text;
    double x;
};

struct Line {
    QVarLengthArray<Piece, 16> pieces; ///< every digit, and every stretch between digits
    double width = 0;
};

Line lay_out(const QString& text, const QFont& font, const QFontMetricsF& metrics)
{
    const double cell = cell_width(font, metrics);
    Line line;
    for (qsizetype i = 0; i < text.size();) {
        qsizetype end = i + 1;
        if (!is_figure(text[i]))
            while (end < text.size() && !is_figure(text[end]))
                ++end;
        const QString piece = text.mid(i, end - i);
        const double advance = metrics.horizontalAdvance(piece);
        const double room = is_figure(text[i]) ? cell : advance;
        line.pieces.append({piece, line.width + (room - advance) / 2});
        line.width += room;
        i = end;
    }
    return line;
}

} // namespace

double figures_width(const QString& text, const QFont& font)
{
    return lay_out(text, font, QFontMetricsF(font)).width;
}

void draw_figures(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text, const QFont& font)
{
    const QFontMetricsF metrics(font);
    const Line line = lay_out(text, font, metrics);
    const double spare = box.width() - line.width;
    const double left = box.left()
        + (alignment & Qt::AlignRight          ? spare
                : alignment & Qt::AlignHCenter ? spare / 2
                                               : 0);
    const double baseline = box.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    painter.setFont(font);
    for (const Piece& piece : line.pieces)
        painter.drawText(QPointF(left + piece.x, baseline), piece.text);
}

} // namespace quillfern::desktop
