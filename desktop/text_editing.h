#pragma once

class QWidget;

namespace quillfern::desktop {

/// What can be done with the text of the field that has the keyboard.
struct TextAbilities {
    bool undo = false;
    bool redo = false;
    bool cut = false;
    bool copy = false;
    bool paste = false;
    bool selectAll = false;

    friend bool operator==(const TextAbilities&, const TextAbilities&) = default;
};

enum class TextOrder { undo, redo, cut, copy, paste, selectAll };

/// Nothing can be done with the text of a widget that is no text field; `focus` may be null. Editable pop-ups and spin
/// boxes count as the line edit in them.
TextAbilities text_abilities(const QWidget* focus);

/// Carries out the order if the widget is able to.
void edit_text(QWidget* focus, TextOrder order);

} // namespace quillfern::desktop
