#include "app/settings/settings_tab.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>

#include <utility>

namespace quillfern::app {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;

SettingsTab::SettingsTab(QString icon_name, const QString& title, QWidget* parent)
    : QAbstractButton(parent), icon_name_(std::move(icon_name))
{
    setText(title);
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize SettingsTab::sizeHint() const
{
    return {scaled(141), scaled(36)};
}

void SettingsTab::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (isChecked() || underMouse())
        desktop::paint_box(painter, rect(), scaled(7), color(isChecked() ? Role::accentTint2 : Role::hairline2));
    if (isChecked()) {
        const QRect bar(0, (height() - scaled(18)) / 2, scaled(3), scaled(18));
        desktop::paint_box(painter, bar, 1.5, color(Role::accent));
    }
    const int side = scaled(18);
    painter.drawPixmap(scaled(10), (height() - side) / 2,
        desktop::icon_pixmap(icon_name_, isChecked() ? Role::accent : Role::text2, side, devicePixelRatioF()));
    desktop::draw_line(painter, rect().adjusted(scaled(39), 0, -scaled(8), 0), text(),
        desktop::text_font(isChecked() ? TextStyle::bodyStrong : TextStyle::body),
        isChecked() ? Role::onAccentTint : Role::text);
}

void SettingsTab::enterEvent(QEnterEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void SettingsTab::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

} // namespace quillfern::app
