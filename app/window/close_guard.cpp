#include "app/window/close_guard.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace quillfern::app {

CloseGuard::CloseGuard(QWidget& main, std::function<bool()> shouldClose)
    : QObject(&main), should_close_(std::move(shouldClose))
{
    main.installEventFilter(this);
}

bool CloseGuard::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Close || should_close_())
        return false;
    event->ignore();
    return true;
}

} // namespace quillfern::app
