#include "desktop/switch_button.h"

#include "desktop/painters.h"

#include <QFontMetrics>
#include <QPainter>

namespace quillfern::desktop {
namespace {

constexpr double track_width = 40;
constexpr double track_height = 22;
constexpr double knob_gap = 3;
constexpr double text_gap = 12;

} // namespace

SwitchButton::SwitchButton(const QString& text, QWidget* parent, TextStyle style)
    : QAbstractButton(parent), style_(style)
{
    setText(text);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SwitchButton::sizeHint() const
{
    const int words = QFontMetrics(text_font(style_)).horizontalAdvance(text()) + 1;
    return {scaled(track_width) + scaled(text_gap) + words, scaled(28)};
}

void SwitchButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int high = scaled(track_height);
    const QRect track(0, (height() - high) / 2, scaled(track_width), high);
    const Role fill = !isEnabled() ? Role::hairline2 : isChecked() ? Role::accentFill : Role::border;
    paint_box(painter, track, high / 2.0, color(fill));
    const int side = high - 2 * scaled(knob_gap);
    const int x = isChecked() ? track.right() + 1 - scaled(knob_gap) - side : track.left() + scaled(knob_gap);
    paint_box(painter, QRect(x, track.top() + scaled(knob_gap), side, side), side / 2.0, color(Role::onAccent));
    draw_line(painter, rect().adjusted(track.width() + scaled(text_gap), 0, 0, 0), text(), text_font(style_),
        isEnabled() ? Role::text : Role::text3);
}

} // namespace quillfern::desktop
