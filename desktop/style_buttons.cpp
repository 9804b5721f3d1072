#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/style.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QVariant>

namespace quillfern::desktop {
namespace {

constexpr const char* kind_property = "quillfernButtonKind";
constexpr double radius = 7;
constexpr double control_height = 34;

struct ButtonLook {
    Role fill;
    Role line;
    Role text;
};

ButtonKind kind_of(const QWidget* widget)
{
    return widget ? static_cast<ButtonKind>(widget->property(kind_property).toInt()) : ButtonKind::normal;
}

ButtonLook look(QStyle::State state, ButtonKind kind)
{
    const bool pressed = state.testFlag(QStyle::State_Sunken);
    const bool hovered = state.testFlag(QStyle::State_MouseOver);
    if (!state.testFlag(QStyle::State_Enabled))
        return {Role::cardAlt, Role::hairline, Role::text3};
    if (kind == ButtonKind::primary) {
        const Role fill = pressed ? Role::accentPressed : hovered ? Role::accentHover : Role::accentFill;
        return {fill, fill, Role::onAccent};
    }
    if (kind == ButtonKind::destructive)
        return {pressed || hovered ? Role::onDangerTint : Role::danger, Role::danger, Role::card};
    return {pressed ? Role::badge : hovered ? Role::neutral : Role::card, Role::border, Role::text};
}

int text_width(const QString& text)
{
    return QFontMetrics(text_font(TextStyle::bodyMedium)).size(Qt::TextShowMnemonic, text).width();
}

/// A picture and a text side by side in the middle of the box.
void draw_picture_and_text(
    QPainter& painter, const QRect& box, const QIcon& picture, const QString& text, Role role, bool enabled)
{
    const int side = picture.isNull() ? 0 : scaled(17);
    const int gap = side > 0 && !text.isEmpty() ? scaled(8) : 0;
    const int text_room = text_width(text);
    int x = box.left() + (box.width() - side - gap - text_room) / 2;
    if (side > 0)
        picture.paint(&painter, x, box.top() + (box.height() - side) / 2, side, side, Qt::AlignCenter,
            enabled ? QIcon::Normal : QIcon::Disabled);
    x += side + gap;
    painter.setFont(text_font(TextStyle::bodyMedium));
    painter.setPen(color(role));
    painter.drawText(QRect(x, box.top(), box.right() + 1 - x, box.height()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, text);
}

} // namespace

void set_button_kind(QPushButton* button, ButtonKind kind)
{
    button->setProperty(kind_property, static_cast<int>(kind));
    button->update();
}

namespace style {

void draw_push_button_bevel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    const ButtonLook colors = look(option.state, kind_of(widget));
    paint_box(painter, option.rect, scaled(radius), color(colors.fill), color(colors.line));
}

void draw_push_button_label(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    draw_picture_and_text(
        painter, option.rect, option.icon, option.text, look(option.state, kind_of(widget)).text, enabled);
}

QSize push_button_size(const QStyleOptionButton& option)
{
    const int picture = option.icon.isNull() ? 0 : scaled(17 + 8);
    return {text_width(option.text) + picture + 2 * scaled(15), scaled(control_height)};
}

void draw_tool_button(const QStyleOptionToolButton& option, QPainter& painter)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool down = option.state.testFlag(QStyle::State_Sunken);
    if (enabled && (down || option.state.testFlag(QStyle::State_MouseOver)))
        paint_box(painter, option.rect, scaled(radius), color(down ? Role::hairline2 : Role::hairline));
    const bool has_menu = option.features.testFlag(QStyleOptionToolButton::HasMenu);
    const bool has_text = option.toolButtonStyle != Qt::ToolButtonIconOnly;
    QRect box = option.rect;
    if (has_menu) {
        const int side = scaled(14);
        const QRect arrow(box.right() + 1 - scaled(10) - side, box.top() + (box.height() - side) / 2, side, side);
        painter.drawPixmap(arrow.topLeft(),
            icon_pixmap(QStringLiteral("chevron-down"), enabled ? Role::text2 : Role::text3, side,
                painter.device()->devicePixelRatioF()));
        box.setRight(arrow.left() - 1 + scaled(2));
    }
    draw_picture_and_text(
        painter, box, option.icon, has_text ? option.text : QString(), enabled ? Role::text : Role::text3, enabled);
}

QSize tool_button_size(const QStyleOptionToolButton& option)
{
    const int height = scaled(control_height);
    if (option.toolButtonStyle == Qt::ToolButtonIconOnly)
        return {height, height};
    const int picture = option.icon.isNull() ? 0 : scaled(17 + 8);
    const int arrow = option.features.testFlag(QStyleOptionToolButton::HasMenu) ? scaled(14 + 8) : 0;
    return {text_width(option.text) + picture + arrow + 2 * scaled(10), height};
}

void draw_field_frame(const QStyleOption& option, QPainter& painter)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    paint_box(painter, option.rect, scaled(radius), color(enabled ? Role::card : Role::cardAlt),
        color(enabled ? Role::border : Role::hairline2));
    if (option.state.testFlag(QStyle::State_HasFocus))
        paint_focus(painter, option.rect, scaled(radius));
}

void draw_combo_box(const QStyleOptionComboBox& option, QPainter& painter)
{
    draw_field_frame(option, painter);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const int side = scaled(16);
    const QRect arrow(
        option.rect.right() + 1 - scaled(10) - side, option.rect.top() + (option.rect.height() - side) / 2, side, side);
    painter.drawPixmap(arrow.topLeft(),
        icon_pixmap(QStringLiteral("chevron-pair"), enabled ? Role::text2 : Role::text3, side,
            painter.device()->devicePixelRatioF()));
    const QRect text_box = option.rect.adjusted(scaled(11), 0, arrow.left() - option.rect.right() - scaled(6), 0);
    draw_line(painter, text_box, option.currentText, text_font(TextStyle::body), enabled ? Role::text : Role::text3);
}

} // namespace style
} // namespace quillfern::desktop
