#pragma once

class QWidget;

namespace quillfern::app {

/// Closes the window that has the keyboard: the sheet above a window first, as long as there is one.
struct CloseWindowAction {
    static void run(QWidget* key);
};

} // namespace quillfern::app
