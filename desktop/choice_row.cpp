#include "desktop/choice_row.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double row_height = 72;
constexpr double tile_side = 42;
constexpr double side_padding = 16;

} // namespace

ChoiceRow::ChoiceRow(QString icon_name, const QString& title, QString line, QWidget* parent)
    : QAbstractButton(parent), icon_name_(std::move(icon_name)), line_(std::move(line))
{
    setText(title);
    setAccessibleName(title);
    setAccessibleDescription(line_);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ChoiceRow::sizeHint() const
{
    return {scaled(320), scaled(row_height)};
}

void ChoiceRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Role fill = isDown() ? Role::neutral : underMouse() ? Role::cardAlt : Role::card;
    paint_box(painter, rect(), scaled(10), color(fill), color(Role::border));
    const int tile = scaled(tile_side);
    const QRect tile_box(scaled(side_padding), (height() - tile) / 2, tile, tile);
    paint_icon_tile(painter, tile_box, icon_name_, Role::accentTint, Role::accent);

    const int arrow = scaled(17);
    const int arrow_left = width() - scaled(side_padding + 2) - arrow;
    painter.drawPixmap(arrow_left, (height() - arrow) / 2,
        icon_pixmap(QStringLiteral("chevron-right"), Role::text, arrow, devicePixelRatioF()));

    const int left = tile_box.right() + 1 + scaled(side_padding);
    const int block = line_height(TextStyle::heading) + line_height(TextStyle::body);
    const QRect title_box(
        left, (height() - block) / 2, arrow_left - scaled(12) - left, line_height(TextStyle::heading));
    draw_line(painter, title_box, text(), text_font(TextStyle::heading), Role::text);
    draw_line(painter, title_box.translated(0, title_box.height()), line_, text_font(TextStyle::body), Role::text2);
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
