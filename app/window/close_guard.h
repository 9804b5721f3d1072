#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace quillfern::app {

/// Takes over the close button of a window: a click asks `shouldClose`, and the window closes only when it says so. An
/// answer that takes time says no first and closes the window later.
class CloseGuard : public QObject {
    Q_OBJECT
public:
    /// Guards `main` for as long as that lives.
    CloseGuard(QWidget& main, std::function<bool()> shouldClose);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<bool()> should_close_;
};

} // namespace quillfern::app
