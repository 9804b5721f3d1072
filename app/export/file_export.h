#pragma once

#include "app/export/export_choices.h"

#include <QString>

#include <functional>

class QDialog;
class QWidget;

namespace quillfern::app {

using Saved = std::function<void(const QString& file_name)>;

/// Asks what to save and where, above `window`, and saves it. A file that is there already is only replaced once the
/// user has said so; when it cannot be saved an alert says why. `saved` is told the file's name. Returns the sheet,
/// which is open.
QDialog* start_export(const grants::GrantFile& file, ExportKind kind, QWidget* window, const Saved& saved);

} // namespace quillfern::app
