#include "app/export/calendar_options.h"

#include "desktop/qt_text.h"
#include "desktop/surface.h"
#include "desktop/switch_button.h"
#include "desktop/text_label.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;
using desktop::to_qt;

void add_text(QWidget* parent, const QString& text, TextStyle style, Role role)
{
    parent->layout()->addWidget(new TextLabel(text, style, role, parent));
}

void add_rule(QWidget* parent)
{
    auto* rule = new desktop::Surface(Role::hairline2, parent);
    rule->setFixedHeight(1);
    parent->layout()->addWidget(rule);
}

QVBoxLayout* make_column(QWidget* parent)
{
    auto* column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(scaled(12));
    return column;
}

} // namespace

CalendarOptions::CalendarOptions(const ExportChoices& choices, QWidget* parent) : QWidget(parent)
{
    make_column(this);
    add_text(this, QStringLiteral("Always included"), TextStyle::bodyStrong, Role::text);
    add_text(
        this, QStringLiteral("Letters of inquiry, applications, reports and milestones"), TextStyle::body, Role::text2);
    add_text(this, QStringLiteral("Also include"), TextStyle::bodyStrong, Role::text);
    drafts_ = add_choice(QStringLiteral("Report draft dates"), QStringLiteral("includeDrafts"), choices.draftDates);
    payments_ = add_choice(QStringLiteral("Expected payments"), QStringLiteral("includePayments"), choices.payments);
    decisions_ =
        add_choice(QStringLiteral("Expected decisions"), QStringLiteral("includeDecisions"), choices.decisions);
    add_rule(this);
    add_alert_row(choices);
}

CalendarOptions::Choice CalendarOptions::add_choice(const QString& text, const QString& name, bool checked)
{
    const Choice choice = {new QCheckBox(text, this), new TextLabel({}, TextStyle::body, Role::text2, this)};
    choice.box->setObjectName(name);
    choice.box->setChecked(checked);
    choice.box->setMinimumHeight(scaled(28));
    auto* row = new QHBoxLayout;
    row->addWidget(choice.box);
    row->addStretch();
    row->addWidget(choice.count);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(choice.box, &QCheckBox::toggled, this, &CalendarOptions::changed);
    return choice;
}

void CalendarOptions::add_alert_row(const ExportChoices& choices)
{
    alert_ = new desktop::SwitchButton(QStringLiteral("Alert before deadlines"), this);
    alert_->setObjectName(QStringLiteral("alertSwitch"));
    alert_->setChecked(choices.alert);
    alert_days_ = new QComboBox(this);
    alert_days_->setObjectName(QStringLiteral("alertDays"));
    alert_days_->setAccessibleName(QStringLiteral("When to alert"));
    for (const std::int64_t days : alert_day_choices)
        alert_days_->addItem(to_qt(alert_words(days)), static_cast<qlonglong>(days));
    const auto chosen = std::find(alert_day_choices.begin(), alert_day_choices.end(), choices.alertDays);
    alert_days_->setCurrentIndex(static_cast<int>(std::distance(alert_day_choices.begin(), chosen)));
    alert_days_->setMinimumWidth(scaled(216));
    alert_days_->setEnabled(choices.alert);
    auto* row = new QHBoxLayout;
    row->addWidget(alert_);
    row->addStretch();
    row->addWidget(alert_days_);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(alert_, &QAbstractButton::toggled, alert_days_, &QWidget::setEnabled);
    connect(alert_, &QAbstractButton::toggled, this, &CalendarOptions::changed);
    connect(alert_days_, &QComboBox::activated, this, &CalendarOptions::changed);
}

void CalendarOptions::read(ExportChoices& choices) const
{
    choices.draftDates = drafts_.box->isChecked();
    choices.payments = payments_.box->isChecked();
    choices.decisions = decisions_.box->isChecked();
    choices.alert = alert_->isChecked();
    choices.alertDays = alert_days_->currentData().toLongLong();
}

void CalendarOptions::show_words(const ExportWords& words)
{
    drafts_.count->setText(to_qt(words.draftDates));
    payments_.count->setText(to_qt(words.payments));
    decisions_.count->setText(to_qt(words.decisions));
}

} // namespace quillfern::app
