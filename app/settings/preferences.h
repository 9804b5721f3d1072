#pragma once

#include <QObject>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quillfern::app {

class SettingsFile;

enum class Paper { letter, a4 };

/// What the user prefers, whatever document is open. Fields that a document has of its own (the start of its fiscal
/// year, its draft lead) are here what new documents begin with.
struct PreferenceValues {
    std::int64_t defaultFiscalStart = 1; ///< month, 1 is January
    std::int64_t defaultDraftLead = 10; ///< days, 0 to 365
    Paper paper = Paper::letter; ///< of PDFs
    std::string preparedBy; ///< name and business of the consultant, as printed on client status reports
    bool welcomeDone = false; ///< the welcome sheet has been seen
    bool remindersOn = false;
    std::string reminderLeadDays = "7,1,0"; ///< days before a deadline, one of reminder_lead_choices
    std::int64_t reminderHour = 9; ///< 0 to 23
    std::int64_t actionReminderDays = 2; ///< days before a board action item is due, 0 to 90

    friend bool operator==(const PreferenceValues&, const PreferenceValues&) = default;
};

inline constexpr std::int64_t most_draft_lead_days = 365;
inline constexpr std::int64_t most_action_reminder_days = 90;

struct ReminderLeadChoice {
    std::string_view value;
    std::string_view label;
};

/// In the order in which they are offered.
inline constexpr std::array<ReminderLeadChoice, 5> reminder_lead_choices = {{
    {"14,7,1,0", "2 weeks, 1 week, the day before and the day"},
    {"7,1,0", "1 week, the day before and the day"},
    {"3,0", "3 days before and the day"},
    {"1,0", "The day before and the day"},
    {"0", "On the day only"},
}};

/// The preferences of all windows. They are read with their bounds: a number outside takes the nearest allowed one,
/// what is missing or of another kind its default. Changes are kept at once, each under the name of its field.
///
///     preferences.edit([](PreferenceValues& values) { values.paper = Paper::a4; });
class Preferences : public QObject {
    Q_OBJECT
public:
    /// `file` must outlive the preferences.
    explicit Preferences(SettingsFile& file, QObject* parent = nullptr);

    const PreferenceValues& values() const { return values_; }

    /// Equal values change nothing and tell nobody; values out of bounds are brought within them.
    void set(const PreferenceValues& values);

    template <class Edit>
    void edit(Edit&& edit)
    {
        PreferenceValues next = values_;
        std::forward<Edit>(edit)(next);
        set(next);
    }

    /// For the user, when the settings could not be read or a change cannot be kept; else empty.
    const QString& problem() const;

Q_SIGNALS:
    void changed(const quillfern::app::PreferenceValues& before, const quillfern::app::PreferenceValues& after);
    void problem_changed();

private:
    SettingsFile& file_;
    PreferenceValues values_;
};

} // namespace quillfern::app
