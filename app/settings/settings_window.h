#pragma once

#include "app/window/app_window.h"

class QStackedWidget;
class QVBoxLayout;

namespace quillfern::desktop {
class NoticeStrip;
}

namespace quillfern::app {

class Preferences;
class ReminderPermission;

/// The settings of the program, in panes. There is nothing to confirm: what the user changes is kept at once. Esc
/// closes it, like Ctrl+W.
class SettingsWindow : public AppWindow {
    Q_OBJECT
public:
    /// `preferences` and `permission` must outlive the window; without `permission` nothing can remind.
    SettingsWindow(Application& application, Preferences& preferences, ReminderPermission* permission = nullptr);

private:
    QWidget* make_side();
    QWidget* make_panes(ReminderPermission* permission);
    void add_pane(QVBoxLayout* list, const QString& icon, const QString& title);
    void show_problem();

    Preferences& preferences_;
    QStackedWidget* panes_;
    desktop::NoticeStrip* problem_;
};

} // namespace quillfern::app
