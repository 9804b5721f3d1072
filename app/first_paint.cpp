#include "app/first_paint.h"

#include "app/application.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace quillfern::app {

FirstPaint::FirstPaint(QObject* parent, std::function<void()> then) : QObject(parent), then_(std::move(then)) { }

void FirstPaint::after(Application& program, std::function<void()> then)
{
    auto* waiting = new FirstPaint(&program, std::move(then));
    connect(&program, &Application::window_shown, waiting,
        [waiting](QWidget* window) { window->installEventFilter(waiting); });
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && then_) {
        // The rest of the window is painted in the same turn of the event loop as this, its first part.
        QTimer::singleShot(0, parent(), std::exchange(then_, nullptr));
        deleteLater();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillfern::app
