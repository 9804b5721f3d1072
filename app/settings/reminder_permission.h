#pragma once

#include <functional>

namespace quillfern::app {

/// Whether the desktop lets this program show notifications.
class ReminderPermission {
public:
    virtual ~ReminderPermission() = default;

    /// Asks the desktop, which may ask the user. `answer` is called in the main thread, at once or later; true:
    /// notifications are allowed.
    virtual void ask(std::function<void(bool allowed)> answer) = 0;
};

} // namespace quillfern::app
