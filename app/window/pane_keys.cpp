#include "app/window/pane_keys.h"

#include <QMainWindow>
#include <QShortcut>

#include <utility>

namespace quillfern::app {

PaneKeys::PaneKeys(QMainWindow& window, std::vector<Pane> panes)
    : QObject(&window), window_(window), panes_(std::move(panes))
{
    const auto on_key = [this](const QKeySequence& keys, std::size_t step) {
        connect(new QShortcut(keys, &window_), &QShortcut::activated, this, [this, step] { cycle(step); });
    };
    on_key(Qt::Key_F6, 1);
    on_key(Qt::SHIFT | Qt::Key_F6, panes_.size() - 1);
}

void PaneKeys::cycle(std::size_t step)
{
    const QWidget* focus = window_.focusWidget();
    std::size_t at = panes_.size() - 1;
    for (std::size_t i = 0; i < panes_.size(); ++i)
        if (focus && (panes_[i].part == focus || panes_[i].part->isAncestorOf(focus)))
            at = i;
    for (std::size_t tried = 0; tried < panes_.size(); ++tried) {
        at = (at + step) % panes_.size();
        if (panes_[at].part->isVisible())
            break;
    }
    QWidget* target = panes_[at].entry();
    target->setFocus(Qt::ShortcutFocusReason);
    window_.setAttribute(Qt::WA_KeyboardFocusChange);
    target->update();
}

} // namespace quillfern::app
