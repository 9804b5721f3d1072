#include "app/settings/settings_window.h"

#include "app/settings/general_settings.h"
#include "app/settings/preferences.h"
#include "app/settings/reminder_settings.h"
#include "app/settings/settings_tab.h"
#include "desktop/notice_strip.h"
#include "desktop/surface.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace quillfern::app {

using desktop::NoticeStrip;
using desktop::Role;
using desktop::scaled;
using desktop::Surface;

SettingsWindow::SettingsWindow(Application& application, Preferences& preferences, ReminderPermission* permission)
    : AppWindow(application), preferences_(preferences), panes_(new QStackedWidget(this)),
      problem_(new NoticeStrip(NoticeStrip::Tone::warn, QStringLiteral("warning"), {}, this))
{
    setObjectName(QStringLiteral("settingsWindow"));
    setWindowTitle(QStringLiteral("Settings"));
    // A window to set things in needs no menu bar; its commands keep their shortcuts.
    for (const QAction* menu : menuBar()->actions())
        addActions(menu->menu()->actions());
    menuBar()->hide();
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);

    auto* content = new Surface(Role::hairline2, this);
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    QWidget* side = make_side();
    row->addWidget(side);
    row->addWidget(make_panes(permission), 1);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(problem_);
    column->addLayout(row, 1);
    setCentralWidget(content);
    setMinimumSize(scaled(620), scaled(488));
    resize(scaled(660), scaled(488));
    side->findChild<SettingsTab*>()->setFocus();
    connect(&preferences_, &Preferences::problem_changed, this, &SettingsWindow::show_problem);
    show_problem();
}

QWidget* SettingsWindow::make_side()
{
    auto* side = new Surface(Role::sidebar, this);
    side->setFixedWidth(scaled(157));
    auto* list = new QVBoxLayout(side);
    list->setContentsMargins(scaled(8), scaled(12), scaled(8), scaled(12));
    list->setSpacing(scaled(1));
    add_pane(list, QStringLiteral("settings"), QStringLiteral("General"));
    add_pane(list, QStringLiteral("bell"), QStringLiteral("Reminders"));
    list->addStretch();
    return side;
}

void SettingsWindow::add_pane(QVBoxLayout* list, const QString& icon, const QString& title)
{
    const int place = list->count();
    auto* tab = new SettingsTab(icon, title, list->parentWidget());
    tab->setChecked(place == 0);
    list->addWidget(tab);
    connect(tab, &QAbstractButton::toggled, panes_, [this, place](bool chosen) {
        if (chosen)
            panes_->setCurrentIndex(place);
    });
}

QWidget* SettingsWindow::make_panes(ReminderPermission* permission)
{
    auto* ground = new Surface(Role::page, this);
    auto* column = new QVBoxLayout(ground);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(panes_);
    panes_->addWidget(new GeneralSettings(preferences_, panes_));
    panes_->addWidget(new ReminderSettings(preferences_, permission, panes_));
    return ground;
}

void SettingsWindow::show_problem()
{
    problem_->set_sentence(preferences_.problem());
    problem_->setVisible(!preferences_.problem().isEmpty());
}

} // namespace quillfern::app
