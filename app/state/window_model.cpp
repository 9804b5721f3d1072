#include "app/state/window_model.h"

#include <utility>

namespace quillfern::app {

void WindowModel::set(const WindowState& state)
{
    if (state == state_)
        return;
    const WindowState before = state_;
    const WindowState after = state; // who hears of it may change the state again
    state_ = after;
    Q_EMIT changed(before, after);
}

void WindowModel::ask(const WindowRequest& request)
{
    edit([&](WindowState& state) { state.request = request; });
}

void WindowModel::tell(const std::string& toast)
{
    edit([](WindowState& state) { state.toast.reset(); }); // the same words again are news, too
    edit([&](WindowState& state) { state.toast = Toast{toast}; });
}

void WindowModel::alert(std::string title, std::string message)
{
    edit([&](WindowState& state) { state.alert = AlertItem{++alerts_, std::move(title), std::move(message)}; });
}

} // namespace quillfern::app
