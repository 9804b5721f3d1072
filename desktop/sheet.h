#pragma once

#include <QDialog>

namespace quillfern::desktop {

/// A dialog above its window only, on the colour of cards. It deletes itself once it is closed.
///
/// Open it with open(), never exec(): a nested event loop cuts off screen readers.
class Sheet : public QDialog {
    Q_OBJECT
public:
    /// `parent` may be null when no window is open.
    explicit Sheet(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillfern::desktop
