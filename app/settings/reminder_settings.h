#pragma once

#include <QWidget>

class QComboBox;
class QSpinBox;
class QVBoxLayout;

namespace quillfern::desktop {
class NoticeStrip;
class SwitchButton;
} // namespace quillfern::desktop

namespace quillfern::app {

class Preferences;
class ReminderPermission;

/// Whether and when the user is reminded of deadlines. What the user changes is kept at once.
class ReminderSettings : public QWidget {
    Q_OBJECT
public:
    /// Both must outlive the pane. Without `permission` nothing can remind: the switch is off and locked, and the pane
    /// says so; the times can be chosen all the same.
    ReminderSettings(Preferences& preferences, ReminderPermission* permission, QWidget* parent = nullptr);

private:
    void lay_out();
    void add_switch_part(QVBoxLayout* column);
    void add_times(QVBoxLayout* column);
    void keep_changes();
    void take_switch(bool on);
    void show_values();

    Preferences& preferences_;
    ReminderPermission* permission_;
    desktop::SwitchButton* switch_;
    desktop::NoticeStrip* denied_; ///< shown after the desktop has refused, until the switch is off
    QComboBox* lead_days_;
    QComboBox* hour_;
    QSpinBox* action_days_;
};

} // namespace quillfern::app
