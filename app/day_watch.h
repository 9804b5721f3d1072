#pragma once

#include "grants/day.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace quillfern::app {

/// Today's date, and word when it changes: at midnight, when the computer wakes up on another day, when the clock or
/// the time zone is set.
class DayWatch : public QObject {
    Q_OBJECT
public:
    using Clock = std::function<grants::Day()>;

    explicit DayWatch(Clock clock, QObject* parent = nullptr);

    const grants::Day& today() const { return today_; }

    /// Asks the clock now; a timer does so every so often.
    void look();

Q_SIGNALS:
    void day_changed(const grants::Day& today);

private:
    Clock clock_;
    grants::Day today_;
    QTimer timer_;
};

} // namespace quillfern::app
