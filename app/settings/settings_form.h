#pragma once

#include <QString>

class QBoxLayout;
class QSpinBox;
class QVBoxLayout;
class QWidget;

/// The pieces that the panes of the settings are put together from.
namespace quillfern::app {

inline constexpr double settings_label_width = 138;

QVBoxLayout* make_settings_column(QWidget* pane);
void add_settings_heading(QBoxLayout* column, const QString& text);
void add_settings_rule(QBoxLayout* column);

/// A label, right-aligned before its field; a hint under the field when there is one. The label names the field for
/// screen readers, which read the hint with it.
void add_settings_row(
    QBoxLayout* column, const QString& label, QWidget* field, const QString& after = {}, const QString& hint = {});

/// A narrow field for a whole number of days, which is told when the user is done typing.
QSpinBox* make_days_field(int most, QWidget* parent);

} // namespace quillfern::app
