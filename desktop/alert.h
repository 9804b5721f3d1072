#pragma once

#include "desktop/icon_tile.h"
#include "desktop/sheet.h"
#include "desktop/style.h"

#include <QString>

#include <functional>
#include <vector>

class QLayout;
class QPushButton;

namespace quillfern::desktop {

/// What an alert says: what happened, and what it means or what to do.
struct AlertWords {
    QString title;
    QString message;
    QString detail; ///< for whoever wants to know more, in small type; empty: none

    friend bool operator==(const AlertWords&, const AlertWords&) = default;
};

/// How an alert that offers one thing looks.
struct AlertForm {
    QString icon = QStringLiteral("warning");
    IconTile::Tone tone = IconTile::Tone::danger;
    QString verb; ///< what the second button does
    bool destructive = false; ///< the verb takes something away: its button is red and never the default
};

/// One of the things that an alert offers.
struct AlertChoice {
    QString text; ///< "Keep Both"
    ButtonKind kind = ButtonKind::normal; ///< at most one is `primary`; a destructive one is never the default
    std::function<void()> chosen;
};

/// How an alert that offers several things looks. "Cancel" is always among them and what Esc does; nothing at all to
/// choose leaves "OK" alone.
struct AlertOffer {
    QString icon = QStringLiteral("warning");
    IconTile::Tone tone = IconTile::Tone::danger;
    std::vector<AlertChoice> choices;
};

/// A message that stays until it is answered, above its window only. Its words can be selected and copied.
class Alert : public Sheet {
    Q_OBJECT
public:
    /// `parent` may be null when no window is open. The result is 0, or the place of the choice that was made, from 1.
    Alert(const AlertWords& words, const AlertOffer& offer, QWidget* parent);

private:
    void lay_out(const AlertWords& words, const AlertOffer& offer);
    QLayout* make_buttons(const std::vector<AlertChoice>& choices);
    QPushButton* make_button(const QString& text, ButtonKind kind, int result);
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

/// Lets the user choose between several things:
///
///     choose({title, message, {}}, {QStringLiteral("warning"), IconTile::Tone::warn,
///         {{QStringLiteral("Delete"), ButtonKind::destructive, drop}, {QStringLiteral("Save…"), ButtonKind::primary,
///         save}}}, window);
///
/// What was chosen, or `cancelled`, is called once the alert is closed, so that another one may follow.
Alert* choose(const AlertWords& words, const AlertOffer& offer, QWidget* parent, std::function<void()> cancelled = {});

} // namespace quillfern::desktop
