#pragma once

#include <QPushButton>

namespace quillfern::app {

/// A small button in a row of a list, for what can be done with the row.
///
/// It leaves the keyboard with the list when it is clicked. When the row goes away, the next row's button may come to
/// stand under the pointer: the second half of a double click is not for that one.
class ActionButton : public QPushButton {
    Q_OBJECT
public:
    ActionButton(const QString& title, QWidget* parent);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace quillfern::app
