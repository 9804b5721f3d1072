#pragma once

#include "desktop/alert.h"
#include "grants/grant_file.h"

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace quillfern::app {

/// What came of importing a board file, in the words for the user.
struct BoardImportAnswer {
    std::optional<grants::GrantFile> next; ///< the file with the board; absent: nothing changes
    QString toast; ///< empty: the alert says it
    desktop::AlertWords alert; ///< with a title when something was refused, or not all of the board could be read
};

/// Reads what stands at `path`: a board package, or the "Board.json" of one.
BoardImportAnswer import_board_file(const grants::GrantFile& current, const QString& path);

/// The edit and the toast that come of an import; the file is the current one when nothing changes.
using BoardImported = std::function<void(grants::GrantFile next, const QString& label, const QString& toast)>;

/// Asks for a board file above `window` and imports it into what `current` gives then. What is refused is said in an
/// alert, and `imported` is not called.
void start_board_import(std::function<grants::GrantFile()> current, QWidget* window, BoardImported imported);

} // namespace quillfern::app
