#pragma once

#include "app/app_window.h"

namespace quillfern::app {

/// Shown when the program starts without a document: what can be opened.
class StartWindow : public AppWindow {
    Q_OBJECT
public:
    explicit StartWindow(Application& application);

private:
    QWidget* make_sheet(QWidget* page);
};

} // namespace quillfern::app
