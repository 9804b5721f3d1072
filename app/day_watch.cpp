#include "app/day_watch.h"

#include <chrono>
#include <utility>

namespace quillfern::app {
namespace {

// Timers stand still while the computer sleeps, so a single one set for midnight would be late after a night with the
// lid closed.
constexpr std::chrono::seconds look_interval{20};

} // namespace

DayWatch::DayWatch(Clock clock, QObject* parent) : QObject(parent), clock_(std::move(clock)), today_(clock_())
{
    timer_.setTimerType(Qt::VeryCoarseTimer);
    connect(&timer_, &QTimer::timeout, this, &DayWatch::look);
    timer_.start(look_interval);
}

void DayWatch::look()
{
    const grants::Day now = clock_();
    if (now == today_)
        return;
    today_ = now;
    Q_EMIT day_changed(today_);
}

} // namespace quillfern::app
