#include "app/export/export_kind_button.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>

#include <utility>

namespace quillfern::app {
namespace {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::text_font;
using desktop::TextStyle;

} // namespace

ExportKindButton::ExportKindButton(QString icon_name, const QString& title, QString line, QWidget* parent)
    : QAbstractButton(parent), icon_name_(std::move(icon_name)), line_(std::move(line))
{
    setText(title);
    setAccessibleDescription(line_);
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ExportKindButton::sizeHint() const
{
    return {scaled(250), scaled(58)};
}

void ExportKindButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (isChecked() || underMouse())
        desktop::paint_box(painter, rect(), scaled(7), color(isChecked() ? Role::accentTint2 : Role::hairline));
    const int side = scaled(18);
    const int upper = desktop::line_height(TextStyle::bodyStrong);
    const int lower = desktop::line_height(TextStyle::second);
    const int top = (height() - upper - lower) / 2;
    const Role role = isChecked() ? Role::onAccentTint : Role::text;
    painter.drawPixmap(scaled(12), top + (upper - side) / 2,
        desktop::icon_pixmap(icon_name_, isChecked() ? Role::onAccentTint : Role::text2, side, devicePixelRatioF()));
    const QRect words(scaled(44), top, width() - scaled(52), upper);
    desktop::draw_line(
        painter, words, text(), text_font(isChecked() ? TextStyle::bodyStrong : TextStyle::bodyMedium), role);
    desktop::draw_line(painter, QRect(words.left(), words.bottom() + 1, words.width(), lower), line_,
        text_font(TextStyle::second), Role::text2);
}

} // namespace quillfern::app
