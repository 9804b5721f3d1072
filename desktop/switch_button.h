#pragma once

#include <QAbstractButton>

namespace quillfern::desktop {

/// Turns something on or off at once, with its words beside it.
class SwitchButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit SwitchButton(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillfern::desktop
