#pragma once

#include "desktop/package_dialog.h"

namespace quillfern::app {

/// Asks for a board file: the ".marrowind" package, or the "Board.json" inside one, which is all that a program without
/// knowledge of packages may have handed on.
class BoardOpenDialog : public desktop::PackageDialog {
    Q_OBJECT
public:
    explicit BoardOpenDialog(QWidget* parent);

    void accept() override;

Q_SIGNALS:
    void board_chosen(const QString& path);

protected:
    void activate_package(const QString& path) override;
};

} // namespace quillfern::app
