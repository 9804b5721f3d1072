#include "app/window/window_tool_bar.h"

#include "app/window/commands.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "desktop/text_label.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
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

    add_fiscal_year();
    add_search();
}

void WindowToolBar::add_fiscal_year()
{
    auto* label = new desktop::TextLabel(QStringLiteral("Fiscal year"), desktop::TextStyle::body, Role::text2, this);
    label->setContentsMargins(0, 0, scaled(4), 0);
    addWidget(label);
    fiscal_year_->setObjectName(QStringLiteral("fiscalYear"));
    fiscal_year_->setAccessibleName(label->text());
    fiscal_year_->setMinimumWidth(scaled(112));
    addWidget(fiscal_year_);
    connect(fiscal_year_, &QComboBox::activated, this,
        [this] { Q_EMIT fiscal_year_chosen(fiscal_year_->currentData().toLongLong()); });
    auto* gap = new QWidget(this);
    gap->setFixedWidth(scaled(14));
    addWidget(gap);
}

void WindowToolBar::add_search()
{
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(QStringLiteral("Find a grant or funder"));
    search_->setAccessibleName(search_->placeholderText());
    search_->addAction(line_icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    QAction* clear = search_->addAction(line_icon(QStringLiteral("close")), QLineEdit::TrailingPosition);
    clear->setToolTip(QStringLiteral("Clear the search"));
    clear->setVisible(false);
    search_->setFixedWidth(scaled(search_width));
    addWidget(search_);
    connect(clear, &QAction::triggered, search_, &QLineEdit::clear);
    connect(
        search_, &QLineEdit::textChanged, clear, [clear](const QString& text) { clear->setVisible(!text.isEmpty()); });
    connect(search_, &QLineEdit::textChanged, this, &WindowToolBar::search_changed);
    connect(search_, &QLineEdit::returnPressed, this, &WindowToolBar::search_left);
    auto* escape = new QShortcut(Qt::Key_Escape, search_);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, [this] {
        if (search_->text().isEmpty())
            Q_EMIT search_left();
        search_->clear();
    });
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

void WindowToolBar::show_fiscal_years(const FiscalYearChoice& choice)
{
    if (fiscal_years_ == choice)
        return;
    fiscal_years_ = choice;
    fiscal_year_->clear();
    for (std::size_t i = 0; i < choice.years.size(); ++i)
        fiscal_year_->addItem(desktop::to_qt(choice.labels[i]), static_cast<qlonglong>(choice.years[i]));
    fiscal_year_->setCurrentIndex(static_cast<int>(choice.shown));
}

void WindowToolBar::show_search(const QString& text)
{
    if (search_->text() != text)
        search_->setText(text);
}

void WindowToolBar::focus_search()
{
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
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
