#pragma once

#include "desktop/sheet.h"

namespace quillfern::app {

/// The program's name and version, what it is, and whose work it stands on.
class AboutDialog : public desktop::Sheet {
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent);
};

} // namespace quillfern::app
