#include "app/window_model.h"

namespace quillfern::app {

void WindowModel::set(const WindowState& state)
{
    if (state == state_)
        return;
    const WindowState before = state_;
    state_ = state;
    Q_EMIT changed(before, state_);
}

} // namespace quillfern::app
