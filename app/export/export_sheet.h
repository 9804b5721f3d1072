#pragma once

#include "app/export/export_choices.h"
#include "desktop/sheet.h"

class QComboBox;
class QPushButton;

namespace quillfern::desktop {
class TextLabel;
}

namespace quillfern::app {

class CalendarOptions;
class ExportKindButton;

/// Chooses what to save of a document, and how. Where it goes is asked for next.
class ExportSheet : public desktop::Sheet {
    Q_OBJECT
public:
    ExportSheet(grants::GrantFile file, ExportKind kind, QWidget* parent);

Q_SIGNALS:
    void save_requested(const quillfern::app::ExportChoices& choices);

private:
    void lay_out();
    QWidget* make_kinds();
    QWidget* make_options();
    QWidget* make_result();
    QWidget* make_foot();
    void take_choices();
    void redraw();

    grants::GrantFile file_;
    ExportChoices choices_;
    ExportKindButton* spreadsheet_ = nullptr;
    ExportKindButton* calendar_ = nullptr;
    desktop::TextLabel* spreadsheet_words_ = nullptr;
    CalendarOptions* calendar_options_ = nullptr;
    QComboBox* language_ = nullptr;
    desktop::TextLabel* result_ = nullptr;
    desktop::TextLabel* hint_ = nullptr;
    desktop::TextLabel* about_ = nullptr;
    QPushButton* save_ = nullptr;
};

} // namespace quillfern::app
