#pragma once

#include "app/export/export_choices.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace quillfern::desktop {
class SwitchButton;
class TextLabel;
} // namespace quillfern::desktop

namespace quillfern::app {

/// What goes into a calendar file beside the deadlines, and when to be told of them.
class CalendarOptions : public QWidget {
    Q_OBJECT
public:
    CalendarOptions(const ExportChoices& choices, QWidget* parent = nullptr);

    /// Writes what is chosen here into the choices.
    void read(ExportChoices& choices) const;
    void show_words(const ExportWords& words);

Q_SIGNALS:
    void changed();

private:
    /// A check box with the number of dates that it stands for.
    struct Choice {
        QCheckBox* box;
        desktop::TextLabel* count;
    };

    Choice add_choice(const QString& text, const QString& name, bool checked);
    void add_alert_row(const ExportChoices& choices);

    Choice drafts_;
    Choice payments_;
    Choice decisions_;
    desktop::SwitchButton* alert_ = nullptr;
    QComboBox* alert_days_ = nullptr;
};

} // namespace quillfern::app
