#include "desktop/text_label.h"

#include <QEvent>

namespace quillfern::desktop {

TextLabel::TextLabel(const QString& text, TextStyle style, Role role, QWidget* parent)
    : QLabel(text, parent), role_(role)
{
    setTextFormat(Qt::PlainText);
    setFont(text_font(style));
    setMinimumHeight(line_height(style));
    setForegroundRole(QPalette::WindowText); // in a tool bar labels would take the buttons' colour
    take_color();
}

void TextLabel::set_role(Role role)
{
    role_ = role;
    take_color();
}

void TextLabel::make_selectable()
{
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void TextLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        take_color();
    QLabel::changeEvent(event);
}

void TextLabel::take_color()
{
    if (palette().color(QPalette::WindowText) == color(role_))
        return;
    QPalette own;
    own.setColor(QPalette::WindowText, color(role_));
    setPalette(own);
}

} // namespace quillfern::desktop
