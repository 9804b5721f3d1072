#pragma once

#include "desktop/type.h"

#include <QAbstractButton>

namespace quillfern::desktop {

/// Turns something on or off at once, with its words beside it.
class SwitchButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit SwitchButton(const QString& text, QWidget* parent = nullptr, TextStyle style = TextStyle::bodyMedium);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextStyle style_;
};

} // namespace quillfern::desktop
