#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QMainWindow;
class QWidget;

namespace quillfern::app {

/// A part of a window that F6 goes to: what counts as being in it, and where the keyboard enters it.
struct Pane {
    QWidget* part;
    std::function<QWidget*()> entry;
};

/// F6 and Shift+F6 take the keyboard to the next and the previous part of a window; parts that are not shown are passed
/// over.
class PaneKeys : public QObject {
    Q_OBJECT
public:
    PaneKeys(QMainWindow& window, std::vector<Pane> panes);

private:
    void cycle(std::size_t step);

    QMainWindow& window_;
    std::vector<Pane> panes_;
};

} // namespace quillfern::app
