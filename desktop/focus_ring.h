#pragma once

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

namespace quillfern::desktop {

/// Draws a ring around the button that the keyboard has reached. Fields and views show their focus themselves, inside
/// their frame; a ring with a gap needs room outside the button, which no style can paint in.
class FocusRing : public QObject {
    Q_OBJECT
public:
    explicit FocusRing(QObject* parent);

private:
    void follow(QWidget* now);

    QPointer<QFocusFrame> frame_;
};

} // namespace quillfern::desktop
