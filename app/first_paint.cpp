#include "app/first_paint.h"

#include "app/application.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace quillfern::app {

FirstPaint::FirstPaint(QObject* parent, std::function<void()> then) : QObject(parent), then_(std::move(then)) { }

void FirstPaint::after(Application& program, std::function<void()> then)
{
    auto* waiting = new FirstPaint(&program, std::move(then));
    connect(&program, &Application::window_shown, waiting,
        [waiting](QWidget* window) { window->windowHandle()->installEventFilter(waiting); });
}

void FirstPaint::after(QWidget& window, std::function<void()> then)
{
    window.windowHandle()->installEventFilter(new FirstPaint(&window, std::move(then)));
}

/// A window whose parts cover it wholly is never painted itself, so its paint events would not tell.
bool FirstPaint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose && static_cast<QWindow*>(watched)->isExposed() && then_) {
        // The window is painted while it takes this event, which happens after its filters have seen it.
        QTimer::singleShot(0, parent(), std::exchange(then_, nullptr));
        deleteLater();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillfern::app
