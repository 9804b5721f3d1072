#include "app/window_tool_bar.h"

#include "app/commands.h"
#include "desktop/icons.h"
#include "desktop/text_label.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace quillfern::app {
namespace {

using desktop::line_icon;
using desktop::Role;
using desktop::scaled;

constexpr double bar_height = 52;
constexpr double search_width = 280;

QToolButton* make_button(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(true);
    return button;
}

} // namespace

WindowToolBar::WindowToolBar(const desktop::WindowMenus& menus, QWidget* parent)
    : QToolBar(QStringLiteral("Tool bar"), parent), sidebar_button_(make_button(this)),
      fiscal_year_(new QComboBox(this)), search_(new QLineEdit(this))
{
    setObjectName(QStringLiteral("toolBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setFixedHeight(scaled(bar_height));

    sidebar_button_->setObjectName(QStringLiteral("sidebarButton"));
    sidebar_button_->setIcon(line_icon(QStringLiteral("sidebar")));
    sidebar_button_->setToolTip(QStringLiteral("Show or hide the sidebar"));
    sidebar_button_->setAccessibleName(sidebar_button_->toolTip());
    connect(sidebar_button_, &QToolButton::clicked, menus.action("toggleSidebar"), &QAction::trigger);
    addWidget(sidebar_button_);
    addSeparator();

    using desktop::MenuId;
    add_menu_button(QStringLiteral("New"), QStringLiteral("add"), menus.group(MenuId::file, file_new_group));
    add_menu_button(QStringLiteral("Export"), QStringLiteral("export"), menus.group(MenuId::file, file_export_group));
    auto* print = make_button(this);
    print->setText(QStringLiteral("Print"));
    print->setIcon(line_icon(QStringLiteral("print")));
    print->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    print->setEnabled(menus.action("printBoard")->isEnabled());
    connect(print, &QToolButton::clicked, menus.action("printBoard"), &QAction::trigger);
    connect(menus.action("printBoard"), &QAction::enabledChanged, print, &QWidget::setEnabled);
    addWidget(print);
    add_stretch();

    auto* label = new desktop::TextLabel(QStringLiteral("Fiscal year"), desktop::TextStyle::body, Role::text2, this);
    label->setContentsMargins(0, 0, scaled(4), 0);
    addWidget(label);
    fiscal_year_->setAccessibleName(label->text());
    fiscal_year_->setMinimumWidth(scaled(112));
    fiscal_year_->setEnabled(false);
    addWidget(fiscal_year_);
    auto* gap = new QWidget(this);
    gap->setFixedWidth(scaled(14));
    addWidget(gap);
    search_->setPlaceholderText(QStringLiteral("Find a grant or funder"));
    search_->setAccessibleName(search_->placeholderText());
    search_->addAction(line_icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    search_->setFixedWidth(scaled(search_width));
    search_->setEnabled(false);
    addWidget(search_);
}

QWidget* WindowToolBar::first_button() const
{
    return sidebar_button_;
}

void WindowToolBar::add_stretch()
{
    auto* stretch = new QWidget(this);
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(stretch);
}

QToolButton* WindowToolBar::add_menu_button(
    const QString& text, const QString& icon_name, const std::vector<QAction*>& actions)
{
    auto* button = make_button(this);
    button->setText(text);
    button->setIcon(line_icon(icon_name));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    menu->addActions(QList<QAction*>(actions.begin(), actions.end()));
    button->setMenu(menu);
    addWidget(button);
    menu_buttons_.push_back(button);
    return button;
}

void WindowToolBar::show_fiscal_year(const QString& label)
{
    if (fiscal_year_->currentText() == label)
        return;
    fiscal_year_->clear();
    fiscal_year_->addItem(label);
}

void WindowToolBar::update_buttons()
{
    for (QToolButton* button : menu_buttons_) {
        const QList<QAction*> actions = button->menu()->actions();
        button->setEnabled(
            std::any_of(actions.begin(), actions.end(), [](const QAction* a) { return a->isEnabled(); }));
    }
}

} // namespace quillfern::app
