#pragma once

#include <QDialog>

class QHBoxLayout;
class QPushButton;

namespace quillfern::desktop {

/// A dialog above its window only, on the colour of cards, in the window's upper part; the window is shaded meanwhile.
/// It deletes itself once it is closed.
///
/// Open it with open(), never exec(): a nested event loop cuts off screen readers.
class Sheet : public QDialog {
    Q_OBJECT
public:
    /// `parent` may be null when no window is open.
    explicit Sheet(QWidget* parent);

    void setVisible(bool visible) override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// The row at the sheet's end: Cancel, and the button that does what the sheet is for.
    QHBoxLayout* make_foot(QPushButton* button);

private:
    void place();
};

} // namespace quillfern::desktop
