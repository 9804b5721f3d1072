#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace quillfern::desktop {
class SegmentedControl;
class TextLabel;
} // namespace quillfern::desktop

namespace quillfern::app {

class Preferences;

/// What new documents begin with, how PDFs are made, and the welcome screen. What the user changes is kept at once.
class GeneralSettings : public QWidget {
    Q_OBJECT
public:
    /// `preferences` must outlive the pane.
    explicit GeneralSettings(Preferences& preferences, QWidget* parent = nullptr);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void lay_out();
    void keep_changes();
    void show_values();
    void keep_prepared_by();

    Preferences& preferences_;
    QComboBox* fiscal_start_;
    QSpinBox* draft_lead_;
    desktop::SegmentedControl* paper_;
    QLineEdit* prepared_by_;
    QPushButton* welcome_;
    desktop::TextLabel* welcome_hint_;
};

} // namespace quillfern::app
