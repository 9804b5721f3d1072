#pragma once

#include "app/state/window_model.h"
#include "grants/grant_file.h"

#include <QWidget>

namespace quillfern::app {

/// A page of a document window. What the user chooses on it goes into the window's state, and comes back from there.
class Page : public QWidget {
public:
    using QWidget::QWidget;

    /// Draws the file as the state asks for it.
    virtual void show_file(const grants::GrantFile& file, const WindowState& state) = 0;
};

} // namespace quillfern::app
