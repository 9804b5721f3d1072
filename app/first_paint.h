#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace quillfern::app {

class Application;

/// Calls a function once, as soon as a window has been painted for the first time.
class FirstPaint : public QObject {
    Q_OBJECT
public:
    /// The first window of the program, whichever that is.
    static void after(Application& program, std::function<void()> then);

    /// This window, which is being shown; never when it goes before.
    static void after(QWidget& window, std::function<void()> then);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FirstPaint(QObject* parent, std::function<void()> then);

    std::function<void()> then_;
};

} // namespace quillfern::app
