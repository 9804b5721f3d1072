#include "desktop/text_editing.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace quillfern::desktop {
namespace {

const QWidget* editor_of(const QWidget* focus)
{
    if (const auto* box = qobject_cast<const QComboBox*>(focus))
        return box->lineEdit();
    if (const auto* box = qobject_cast<const QAbstractSpinBox*>(focus))
        return box->findChild<QLineEdit*>();
    return focus;
}

TextAbilities abilities_of(const QLineEdit& line)
{
    const bool writable = !line.isReadOnly() && line.isEnabled();
    const bool secret = line.echoMode() != QLineEdit::Normal;
    return {.undo = writable && line.isUndoAvailable(),
        .redo = writable && line.isRedoAvailable(),
        .cut = writable && line.hasSelectedText() && !secret,
        .copy = line.hasSelectedText() && !secret,
        .paste = writable,
        .selectAll = !line.text().isEmpty()};
}

template <class TextEdit>
TextAbilities abilities_of(const TextEdit& edit)
{
    const bool writable = !edit.isReadOnly() && edit.isEnabled();
    const bool selected = edit.textCursor().hasSelection();
    return {.undo = writable && edit.document()->isUndoAvailable(),
        .redo = writable && edit.document()->isRedoAvailable(),
        .cut = writable && selected,
        .copy = selected,
        .paste = writable && edit.canPaste(),
        .selectAll = !edit.document()->isEmpty()};
}

/// Every text widget of the toolkit has these slots.
const char* slot_of(TextOrder order)
{
    constexpr const char* names[] = {"undo", "redo", "cut", "copy", "paste", "selectAll"};
    return names[static_cast<int>(order)];
}

bool is_able(const TextAbilities& text, TextOrder order)
{
    const bool able[] = {text.undo, text.redo, text.cut, text.copy, text.paste, text.selectAll};
    return able[static_cast<int>(order)];
}

} // namespace

TextAbilities text_abilities(const QWidget* focus)
{
    const QWidget* editor = editor_of(focus);
    if (const auto* line = qobject_cast<const QLineEdit*>(editor))
        return abilities_of(*line);
    if (const auto* edit = qobject_cast<const QTextEdit*>(editor))
        return abilities_of(*edit);
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(editor))
        return abilities_of(*edit);
    return {};
}

void edit_text(QWidget* focus, TextOrder order)
{
    if (is_able(text_abilities(focus), order))
        QMetaObject::invokeMethod(const_cast<QWidget*>(editor_of(focus)), slot_of(order));
}

} // namespace quillfern::desktop
