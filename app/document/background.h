#pragma once

#include <QObject>

#include <functional>
#include <future>
#include <optional>
#include <utility>

namespace quillfern::app {

/// Runs one piece of work at a time in a thread of its own and brings its result back to the thread of `context`.
///
///     background.start([package] { return write(package); }, [this](Result result) { ... });
template <class T>
class Background {
public:
    explicit Background(QObject& context) : context_(context) { }
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;
    ~Background() { wait(); }

    bool running() const { return result_.valid(); }

    /// Only when nothing is running. `done` is called from the event loop, or from finish().
    void start(std::function<T()> work, std::function<void(T)> done)
    {
        done_ = std::move(done);
        const std::int64_t turn = ++turn_;
        result_ = std::async(std::launch::async, [this, turn, work = std::move(work)] {
            T result = work();
            QMetaObject::invokeMethod(
                &context_, [this, turn] { deliver(turn); }, Qt::QueuedConnection);
            return result;
        });
    }

    /// Waits for what is running, and calls its `done` now.
    void finish() { deliver(turn_); }

private:
    void wait()
    {
        if (result_.valid())
            result_.wait();
    }

    void deliver(std::int64_t turn)
    {
        if (turn != turn_ || !result_.valid())
            return; // finish() was faster
        T result = result_.get();
        std::exchange(done_, nullptr)(std::move(result));
    }

    QObject& context_;
    std::future<T> result_;
    std::function<void(T)> done_;
    std::int64_t turn_ = 0;
};

} // namespace quillfern::app
