#pragma once

#include <QIcon>
#include <QProxyStyle>

class QPushButton;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionToolButton;

namespace quillfern::desktop {

enum class ButtonKind { normal, primary, destructive };

/// What the button does decides how it looks; a new button is `normal`.
void set_button_kind(QPushButton* button, ButtonKind kind);

/// Fusion, with our own buttons, fields, menus, tool bars and scroll bars, painted from the colour tokens.
///
/// Every colour is read while painting, so a change of scheme needs no new style. Item views are painted by their
/// delegates.
class Style : public QProxyStyle {
public:
    Style();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap standard_icon, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;
};

/// The parts of the style, each in the file of its kind of control.
namespace style {

void draw_push_button_bevel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
void draw_push_button_label(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);
QSize push_button_size(const QStyleOptionButton& option);
void draw_tool_button(const QStyleOptionToolButton& option, QPainter& painter);
QSize tool_button_size(const QStyleOptionToolButton& option);
void draw_field_frame(const QStyleOption& option, QPainter& painter);
void draw_combo_box(const QStyleOptionComboBox& option, QPainter& painter);

void draw_check_box(const QStyleOption& option, QPainter& painter);

void draw_menu_bar_item(const QStyleOptionMenuItem& option, QPainter& painter);
QSize menu_bar_item_size(const QStyleOptionMenuItem& option);
void draw_menu_item(const QStyleOptionMenuItem& option, QPainter& painter);
QSize menu_item_size(const QStyleOptionMenuItem& option, const QWidget* menu);
void draw_scroll_bar(const QStyleOptionSlider& option, const QRect& thumb, QPainter& painter);

const char* icon_name(QStyle::StandardPixmap standard_icon); ///< null: the toolkit's own picture

} // namespace style
} // namespace quillfern::desktop
