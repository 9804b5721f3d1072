#pragma once

#include "desktop/sheet.h"

class QLineEdit;
class QPushButton;

namespace quillfern::desktop {
class TextLabel;
}

namespace quillfern::app {

/// Asks for another name for a document's file, without its ending.
class RenameSheet : public desktop::Sheet {
    Q_OBJECT
public:
    RenameSheet(const QString& name, QWidget* parent);

Q_SIGNALS:
    void name_chosen(const QString& name);

private:
    void lay_out();
    void judge();

    QLineEdit* name_;
    desktop::TextLabel* problem_;
    QPushButton* rename_;
};

} // namespace quillfern::app
