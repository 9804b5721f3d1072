#include "desktop/undo_keys.h"

#include "desktop/text_editing.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quillfern::desktop {
namespace {

bool is_undo(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Z && key.modifiers() == Qt::ControlModifier;
}

bool is_redo(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Z && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

} // namespace

UndoKeys::UndoKeys(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    // A field that accepts this event gets the key; one that does not leaves it to the window's shortcuts.
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType())
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (!is_undo(key) && !is_redo(key))
        return false;
    const TextAbilities text = text_abilities(static_cast<QWidget*>(watched));
    if (is_undo(key) ? text.undo : text.redo)
        return false;
    event->ignore();
    return true;
}

} // namespace quillfern::desktop
