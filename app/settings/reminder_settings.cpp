#include "app/settings/reminder_settings.h"

#include "app/settings/preferences.h"
#include "app/settings/reminder_permission.h"
#include "app/settings/settings_form.h"
#include "desktop/notice_strip.h"
#include "desktop/qt_text.h"
#include "desktop/switch_button.h"
#include "platform/locale_text.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillfern::app {
namespace {

using desktop::NoticeStrip;
using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

/// The label at the left and the field at the right, as wide as its neighbours.
void add_time_row(QVBoxLayout* column, const QString& label, QWidget* field, const QString& after = {})
{
    field->setAccessibleName(label);
    auto* words = new TextLabel(label, TextStyle::body, Role::text2);
    words->setBuddy(field);
    auto* fields = new QHBoxLayout;
    fields->setSpacing(scaled(10));
    fields->addWidget(field);
    if (!after.isEmpty())
        fields->addWidget(new TextLabel(after, TextStyle::body, Role::text), 1);
    auto* place = new QWidget;
    place->setFixedWidth(scaled(132));
    place->setLayout(fields);
    fields->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    row->addWidget(words, 1);
    row->addWidget(place);
    column->addLayout(row);
}

} // namespace

ReminderSettings::ReminderSettings(Preferences& preferences, ReminderPermission* permission, QWidget* parent)
    : QWidget(parent), preferences_(preferences), permission_(permission),
      switch_(new desktop::SwitchButton(QStringLiteral("Remind me of deadlines"), this, TextStyle::heading)),
      denied_(new NoticeStrip(NoticeStrip::Tone::warn, QStringLiteral("bell-off"),
          QStringLiteral("Notifications are off for Quillfern. Turn them on in System Settings › Notifications."), this,
          NoticeStrip::Shape::card)),
      lead_days_(new QComboBox(this)), hour_(new QComboBox(this)),
      action_days_(make_days_field(most_action_reminder_days, this))
{
    switch_->setObjectName(QStringLiteral("remindersOn"));
    denied_->setObjectName(QStringLiteral("remindersDenied"));
    lead_days_->setObjectName(QStringLiteral("reminderLeadDays"));
    hour_->setObjectName(QStringLiteral("reminderHour"));
    action_days_->setObjectName(QStringLiteral("actionReminderDays"));
    for (const ReminderLeadChoice& choice : reminder_lead_choices)
        lead_days_->addItem(desktop::to_qt(choice.label), desktop::to_qt(choice.value));
    for (int hour = 0; hour < 24; ++hour)
        hour_->addItem(QString::fromStdString(platform::format_time(hour, 0, Lang::en)));
    switch_->setEnabled(permission_ != nullptr);
    denied_->hide();
    lay_out();
    show_values();
    connect(&preferences_, &Preferences::changed, this, &ReminderSettings::show_values);
    connect(switch_, &QAbstractButton::toggled, this, &ReminderSettings::take_switch);
    connect(lead_days_, &QComboBox::currentIndexChanged, this, &ReminderSettings::keep_changes);
    connect(hour_, &QComboBox::currentIndexChanged, this, &ReminderSettings::keep_changes);
    connect(action_days_, &QSpinBox::valueChanged, this, &ReminderSettings::keep_changes);
}

void ReminderSettings::lay_out()
{
    QVBoxLayout* column = make_settings_column(this);
    add_switch_part(column);
    column->addSpacing(scaled(4));
    add_times(column);
    column->addStretch();
}

void ReminderSettings::add_switch_part(QVBoxLayout* column)
{
    column->addWidget(switch_);
    auto* explanation =
        new TextLabel(QStringLiteral("Draft dates and expected payments get one reminder on the day. Reminders are set "
                                     "for the files you open on this Mac and update as you change dates. Nothing "
                                     "leaves your Mac."),
            TextStyle::body, Role::text2, this);
    explanation->setWordWrap(true);
    switch_->setAccessibleDescription(explanation->text());
    column->addWidget(explanation);
    column->addWidget(denied_);
    if (!permission_)
        column->addWidget(new NoticeStrip(NoticeStrip::Tone::info, QStringLiteral("info"),
            QStringLiteral("This version of Quillfern can’t remind you yet. The times below are kept for the one that "
                           "can."),
            this, NoticeStrip::Shape::card));
}

void ReminderSettings::add_times(QVBoxLayout* column)
{
    auto* before = new TextLabel(
        QStringLiteral("Before letters, applications and reports are due"), TextStyle::body, Role::text2, this);
    before->setBuddy(lead_days_);
    lead_days_->setAccessibleName(before->text());
    auto* lead = new QVBoxLayout;
    lead->setSpacing(scaled(4));
    lead->addWidget(before);
    lead->addWidget(lead_days_);
    column->addLayout(lead);
    add_time_row(column, QStringLiteral("At this time of day"), hour_);
    add_time_row(column, QStringLiteral("Before board action items are due"), action_days_, QStringLiteral("days"));
}

void ReminderSettings::take_switch(bool on)
{
    preferences_.edit([on](PreferenceValues& values) { values.remindersOn = on; });
    denied_->hide();
    if (!on)
        return;
    permission_->ask([pane = QPointer<ReminderSettings>(this)](bool allowed) {
        if (pane && pane->switch_->isChecked())
            pane->denied_->setVisible(!allowed);
    });
}

void ReminderSettings::keep_changes()
{
    preferences_.edit([this](PreferenceValues& values) {
        values.reminderLeadDays = lead_days_->currentData().toString().toStdString();
        values.reminderHour = hour_->currentIndex();
        values.actionReminderDays = action_days_->value();
    });
}

void ReminderSettings::show_values()
{
    const PreferenceValues& values = preferences_.values();
    const QSignalBlocker blocked[] = {
        QSignalBlocker(switch_), QSignalBlocker(lead_days_), QSignalBlocker(hour_), QSignalBlocker(action_days_)};
    switch_->setChecked(permission_ && values.remindersOn);
    lead_days_->setCurrentIndex(lead_days_->findData(QString::fromStdString(values.reminderLeadDays)));
    hour_->setCurrentIndex(static_cast<int>(values.reminderHour));
    action_days_->setValue(static_cast<int>(values.actionReminderDays));
}

} // namespace quillfern::app
