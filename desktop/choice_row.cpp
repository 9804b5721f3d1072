#include "desktop/choice_row.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double row_height = 72;
constexpr double tile_side = 42;
constexpr double side_padding = 16;
constexpr double arrow_side = 17;

int words_left()
{
    return 2 * scaled(side_padding) + scaled(tile_side);
}

int words_right()
{
    return scaled(side_padding + 2) + scaled(arrow_side) + scaled(12);
}

} // namespace

ChoiceRow::ChoiceRow(QString icon_name, const QString& title, QString line, QWidget* parent)
    : QAbstractButton(parent), icon_name_(std::move(icon_name)), line_(std::move(line))
{
    setText(title);
    setAccessibleName(title);
    setAccessibleDescription(line_);
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize ChoiceRow::sizeHint() const
{
    return {scaled(320), scaled(row_height)};
}

int ChoiceRow::line_height_for(int width) const
{
    const QRect room(0, 0, width - words_left() - words_right(), QWIDGETSIZE_MAX);
    return QFontMetrics(text_font(TextStyle::body)).boundingRect(room, Qt::TextWordWrap, line_).height();
}

int ChoiceRow::heightForWidth(int width) const
{
    return std::max(scaled(row_height), line_height(TextStyle::heading) + line_height_for(width) + 2 * scaled(15));
}

void ChoiceRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool on = isEnabled();
    const Role fill = isDown() ? Role::neutral : underMouse() ? Role::cardAlt : Role::card;
    paint_box(painter, rect(), scaled(10), color(on ? fill : Role::cardAlt), color(on ? Role::border : Role::hairline));
    const int tile = scaled(tile_side);
    const QRect tile_box(scaled(side_padding), (height() - tile) / 2, tile, tile);
    paint_icon_tile(
        painter, tile_box, icon_name_, on ? Role::accentTint : Role::neutral, on ? Role::accent : Role::text3);

    const int arrow = scaled(arrow_side);
    painter.drawPixmap(width() - scaled(side_padding + 2) - arrow, (height() - arrow) / 2,
        icon_pixmap(QStringLiteral("chevron-right"), on ? Role::text : Role::text3, arrow, devicePixelRatioF()));

    const int title = line_height(TextStyle::heading);
    const int line = line_height_for(width());
    const QRect title_box(words_left(), (height() - title - line) / 2, width() - words_left() - words_right(), title);
    draw_line(painter, title_box, text(), text_font(TextStyle::heading), on ? Role::text : Role::text3);
    painter.setFont(text_font(TextStyle::body));
    painter.setPen(color(on ? Role::text2 : Role::text3));
    painter.drawText(QRect(title_box.left(), title_box.bottom() + 1, title_box.width(), line), Qt::TextWordWrap, line_);
}

/// Return activates as it does on the buttons of dialogs.
void ChoiceRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return click();
    QAbstractButton::keyPressEvent(event);
}

void ChoiceRow::enterEvent(QEnterEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void ChoiceRow::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

} // namespace quillfern::desktop
