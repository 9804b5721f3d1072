#pragma once

#include <QObject>

#include <functional>

namespace quillfern::app {

class Application;

/// Calls a function once, as soon as the first window of the program has been painted.
class FirstPaint : public QObject {
    Q_OBJECT
public:
    static void after(Application& program, std::function<void()> then);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FirstPaint(QObject* parent, std::function<void()> then);

    std::function<void()> then_;
};

} // namespace quillfern::app
