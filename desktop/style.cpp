#include "desktop/style.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

namespace quillfern::desktop {
namespace {

template <class Option>
const Option& as(const QStyleOption* option)
{
    return *qstyleoption_cast<const Option*>(option);
}

void fill(QPainter& painter, const QRect& rect, Role role)
{
    painter.fillRect(rect, color(role));
}

} // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) { }

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QScrollBar*>(widget))
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false); // its track shows the page behind
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_FrameFocusRect: // delegates and the focus ring show the focus
    case PE_FrameStatusBarItem:
    case PE_FrameLineEdit:
        return;
    case PE_PanelLineEdit: // the one inside another field has no frame of its own
        if (as<QStyleOptionFrame>(option).lineWidth > 0)
            style::draw_field_frame(*option, *painter);
        return;
    case PE_IndicatorCheckBox:
        return style::draw_check_box(*option, *painter);
    case PE_PanelMenu: // also the list of a combo box, which draws no frame of its own
        fill(*painter, option->rect, Role::card);
        [[fallthrough]];
    case PE_FrameMenu:
        painter->setPen(line_pen(Role::hairline2));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        return;
    case PE_PanelTipLabel:
        fill(*painter, option->rect, Role::toastBg);
        return;
    case PE_IndicatorToolBarSeparator: {
        const QPointF middle = QRectF(option->rect).center();
        const double half = scaled(12);
        painter->setPen(line_pen(Role::hairline2));
        painter->drawLine(QPointF(middle.x(), middle.y() - half), QPointF(middle.x(), middle.y() + half));
        return;
    }
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case CE_PushButtonBevel:
        return style::draw_push_button_bevel(as<QStyleOptionButton>(option), *painter, widget);
    case CE_PushButtonLabel:
        return style::draw_push_button_label(as<QStyleOptionButton>(option), *painter, widget);
    case CE_ComboBoxLabel: // drawn with its frame
        return;
    case CE_MenuBarItem:
        return style::draw_menu_bar_item(as<QStyleOptionMenuItem>(option), *painter);
    case CE_MenuBarEmptyArea:
        return fill(*painter, option->rect, Role::window);
    case CE_MenuItem:
        return style::draw_menu_item(as<QStyleOptionMenuItem>(option), *painter);
    case CE_Splitter:
        return fill(*painter, option->rect, Role::hairline2);
    case CE_ToolBar:
        fill(*painter, option->rect, Role::window);
        return fill(*painter, option->rect.adjusted(0, option->rect.height() - 1, 0, 0), Role::hairline2);
    case CE_FocusFrame:
        return paint_focus(*painter, option->rect, scaled(7) + scaled(4));
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void Style::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    switch (control) {
    case CC_ToolButton:
        return style::draw_tool_button(as<QStyleOptionToolButton>(option), *painter);
    case CC_ComboBox:
        return style::draw_combo_box(as<QStyleOptionComboBox>(option), *painter);
    case CC_SpinBox: // ours have no buttons: the arrow keys step
        return style::draw_field_frame(*option, *painter);
    case CC_ScrollBar: {
        const QRect thumb = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
        return style::draw_scroll_bar(as<QStyleOptionSlider>(option), thumb, *painter);
    }
    default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    switch (type) {
    case CT_PushButton:
        return style::push_button_size(as<QStyleOptionButton>(option));
    case CT_ToolButton:
        return style::tool_button_size(as<QStyleOptionToolButton>(option));
    case CT_LineEdit:
    case CT_SpinBox:
        return {contents.width(), scaled(34)};
    case CT_ComboBox:
        return {contents.width() + scaled(46), scaled(34)};
    case CT_MenuBarItem:
        return style::menu_bar_item_size(as<QStyleOptionMenuItem>(option));
    case CT_MenuItem:
        return style::menu_item_size(as<QStyleOptionMenuItem>(option), widget);
    default:
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
}

QRect Style::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    if (control == CC_ScrollBar && (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine))
        return {};
    if (control == CC_ScrollBar && part == SC_ScrollBarGroove)
        return option->rect;
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents)
        return option->rect.adjusted(scaled(8), 0, -scaled(8), 0);
    return QProxyStyle::subElementRect(element, option, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
    case PM_MenuHMargin:
    case PM_ToolBarFrameWidth:
    case PM_ToolBarExtensionExtent:
        return 0;
    case PM_MenuBarHMargin:
        return scaled(8);
    case PM_MenuBarVMargin:
        return scaled(1);
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
        return scaled(5);
    case PM_ScrollBarExtent:
        return scaled(14);
    case PM_ScrollBarSliderMin:
        return scaled(40);
    case PM_SplitterWidth:
        return 1;
    case PM_SmallIconSize:
    case PM_ToolBarIconSize:
    case PM_ButtonIconSize:
        return scaled(17);
    case PM_ToolBarItemSpacing:
        return scaled(4);
    case PM_ToolBarItemMargin:
        return scaled(9);
    case PM_ToolBarSeparatorExtent:
        return scaled(25);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return scaled(20);
    case PM_CheckBoxLabelSpacing:
        return scaled(12);
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return scaled(4);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

/// Our own icons for what the toolkit's dialogs show. The sign that a bar has more than fits is among them for speed:
/// every menu bar asks for it, whether it shows or not, and the toolkit's own picture would load a plug-in at each
/// start.
QIcon Style::standardIcon(StandardPixmap standard_icon, const QStyleOption* option, const QWidget* widget) const
{
    if (const char* name = style::icon_name(standard_icon))
        return line_icon(QLatin1String(name));
    return QProxyStyle::standardIcon(standard_icon, option, widget);
}

int Style::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_UnderlineShortcut:
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_DitherDisabledText:
        return 0;
    case SH_FocusFrame_AboveWidget:
    case SH_MenuBar_MouseTracking:
    case SH_Menu_MouseTracking:
    case SH_ScrollBar_LeftClickAbsolutePosition:
    case SH_Menu_Scrollable: // one that is higher than the display scrolls rather than breaking into columns
        return 1;
    case SH_FocusFrame_Mask:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace quillfern::desktop
