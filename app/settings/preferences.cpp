#include "app/settings/preferences.h"

#include "app/settings/settings_file.h"

#include <QStringList>
#include <QVariant>

#include <algorithm>

namespace quillfern::app {
namespace {

struct NumberKey {
    QLatin1String key;
    std::int64_t PreferenceValues::*field;
    std::int64_t least;
    std::int64_t most;
};

constexpr std::array<NumberKey, 4> number_keys = {{
    {QLatin1String("defaultFiscalStart"), &PreferenceValues::defaultFiscalStart, 1, 12},
    {QLatin1String("defaultDraftLead"), &PreferenceValues::defaultDraftLead, 0, most_draft_lead_days},
    {QLatin1String("reminderHour"), &PreferenceValues::reminderHour, 0, 23},
    {QLatin1String("actionReminderDays"), &PreferenceValues::actionReminderDays, 0, most_action_reminder_days},
}};

struct SwitchKey {
    QLatin1String key;
    bool PreferenceValues::*field;
};

constexpr std::array<SwitchKey, 2> switch_keys = {{
    {QLatin1String("welcomeDone"), &PreferenceValues::welcomeDone},
    {QLatin1String("remindersOn"), &PreferenceValues::remindersOn},
}};

constexpr QLatin1String paper_key("paper");
constexpr QLatin1String prepared_by_key("preparedBy");
constexpr QLatin1String lead_days_key("reminderLeadDays");
constexpr QLatin1String a4_name("a4");
constexpr QLatin1String letter_name("letter");

/// A text with commas that was written by hand, without quotation marks, comes as a list.
QString text(const SettingsFile& file, QLatin1String key, const QString& comma)
{
    return file.value(key).toStringList().join(comma);
}

void bring_within_bounds(PreferenceValues& values)
{
    for (const NumberKey& number : number_keys)
        values.*number.field = std::clamp(values.*number.field, number.least, number.most);
    const bool offered = std::any_of(reminder_lead_choices.begin(), reminder_lead_choices.end(),
        [&](const ReminderLeadChoice& choice) { return choice.value == values.reminderLeadDays; });
    if (!offered)
        values.reminderLeadDays = PreferenceValues().reminderLeadDays;
}

PreferenceValues read(const SettingsFile& file)
{
    PreferenceValues values;
    for (const NumberKey& number : number_keys) {
        bool whole = false;
        const qlonglong read = file.value(number.key).toString().toLongLong(&whole);
        if (whole)
            values.*number.field = read;
    }
    for (const SwitchKey& on : switch_keys)
        values.*on.field = file.value(on.key).toString() == QLatin1String("true");
    if (text(file, paper_key, {}) == a4_name)
        values.paper = Paper::a4;
    values.preparedBy = text(file, prepared_by_key, QStringLiteral(", ")).toStdString();
    values.reminderLeadDays = text(file, lead_days_key, QStringLiteral(",")).toStdString();
    bring_within_bounds(values);
    return values;
}

QVariantMap stored_form(const PreferenceValues& values)
{
    QVariantMap stored;
    for (const NumberKey& number : number_keys)
        stored[number.key] = static_cast<qlonglong>(values.*number.field);
    for (const SwitchKey& on : switch_keys)
        stored[on.key] = values.*on.field;
    stored[paper_key] = QString(values.paper == Paper::a4 ? a4_name : letter_name);
    stored[prepared_by_key] = QString::fromStdString(values.preparedBy);
    stored[lead_days_key] = QString::fromStdString(values.reminderLeadDays);
    return stored;
}

} // namespace

Preferences::Preferences(SettingsFile& file, QObject* parent) : QObject(parent), file_(file), values_(read(file))
{
    connect(&file_, &SettingsFile::problem_changed, this, &Preferences::problem_changed);
}

void Preferences::set(const PreferenceValues& values)
{
    PreferenceValues next = values;
    bring_within_bounds(next);
    if (next == values_)
        return;
    const PreferenceValues before = values_;
    values_ = next;
    const QVariantMap old_form = stored_form(before);
    QVariantMap changes = stored_form(next);
    changes.removeIf([&](const auto& entry) { return old_form[entry.key()] == entry.value(); });
    file_.keep(changes);
    Q_EMIT changed(before, next);
}

const QString& Preferences::problem() const
{
    return file_.problem();
}

} // namespace quillfern::app
