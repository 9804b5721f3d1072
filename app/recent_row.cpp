#include "app/recent_row.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillfern::app {

using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;

RecentRow::RecentRow(const RecentDocument& document, QWidget* parent)
    : QAbstractButton(parent),
      line_(document.missing ? QStringLiteral("Not there now · %1").arg(document.folder) : document.folder)
{
    setText(document.name);
    setAccessibleName(document.name);
    setAccessibleDescription(line_);
    setToolTip(document.path);
    setEnabled(!document.missing);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize RecentRow::sizeHint() const
{
    return {scaled(240), scaled(52)};
}

void RecentRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (isEnabled() && (isDown() || underMouse()))
        desktop::paint_box(painter, rect(), scaled(7), desktop::color(isDown() ? Role::hairline2 : Role::cardAlt));
    const int side = scaled(18);
    painter.drawPixmap(scaled(10), (height() - side) / 2,
        desktop::icon_pixmap(
            QStringLiteral("file"), isEnabled() ? Role::text2 : Role::text3, side, devicePixelRatioF()));
    const int upper = desktop::line_height(TextStyle::bodyStrong);
    const int lower = desktop::line_height(TextStyle::second);
    const int left = scaled(10) + side + scaled(11);
    const QRect name(left, (height() - upper - lower) / 2, width() - left - scaled(8), upper);
    desktop::draw_line(
        painter, name, text(), desktop::text_font(TextStyle::bodyStrong), isEnabled() ? Role::text : Role::text3);
    desktop::draw_line(painter, QRect(left, name.bottom() + 1, name.width(), lower), line_,
        desktop::text_font(TextStyle::second), isEnabled() ? Role::text2 : Role::text3);
}

/// Return opens it, as it does in a list.
void RecentRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return click();
    QAbstractButton::keyPressEvent(event);
}

void RecentRow::enterEvent(QEnterEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void RecentRow::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

} // namespace quillfern::app
