#pragma once

#include "desktop/icon_tile.h"
#include "desktop/sheet.h"

#include <QString>

#include <functional>

class QBoxLayout;
class QPushButton;

namespace quillfern::desktop {

/// What an alert says: what happened, and what it means or what to do.
struct AlertWords {
    QString title;
    QString message;
    QString detail; ///< for whoever wants to know more, in small type; empty: none

    friend bool operator==(const AlertWords&, const AlertWords&) = default;
};

/// How an alert looks and what it offers.
struct AlertForm {
    QString icon = QStringLiteral("warning");
    IconTile::Tone tone = IconTile::Tone::danger;
    QString verb; ///< what the second button does; empty: there is "OK" alone
    bool destructive = false; ///< the verb takes something away: its button is red and never the default
};

/// A message that stays until it is answered, above its window only. Its words can be selected and copied.
class Alert : public Sheet {
    Q_OBJECT
public:
    /// With one button, "OK"; with a verb, with "Cancel" and a button that does what the verb says. `parent` may be
    /// null when no window is open.
    Alert(const AlertWords& words, const AlertForm& form, QWidget* parent);

private:
    void lay_out(const AlertWords& words, const AlertForm& form, QLayout* buttons);
    QLayout* make_buttons(const AlertForm& form);
    QPushButton* add_button(QBoxLayout* row, const QString& text, bool primary);
};

/// Opens an alert that cleans up after itself; `closed` is called once the user has read it.
Alert* show_alert(const AlertWords& words, QWidget* parent, std::function<void()> closed = {});

/// The same for good news, without the warning.
Alert* show_note(const AlertWords& words, const QString& icon, QWidget* parent);

/// Offers what the verb says; `chosen` is called when the user wants it.
Alert* offer(const AlertWords& words, const AlertForm& form, QWidget* parent, std::function<void()> chosen);

/// Asks before something is lost; `confirmed` is called when the user wants it.
Alert* ask_before(
    const AlertWords& words, const QString& destructive_verb, QWidget* parent, std::function<void()> confirmed);

} // namespace quillfern::desktop
