#pragma once

#include "desktop/sheet.h"

#include <QString>

#include <functional>

namespace quillfern::desktop {

/// What an alert says: what happened, and what it means or what to do.
struct AlertWords {
    QString title;
    QString message;
    QString detail; ///< for whoever wants to know more, in small type; empty: none

    friend bool operator==(const AlertWords&, const AlertWords&) = default;
};

/// A message that stays until it is answered, above its window only. Its words can be selected and copied.
class Alert : public Sheet {
    Q_OBJECT
public:
    /// With one button, "OK"; with a verb, with "Cancel" and a button that does what the verb says and cannot be given
    /// by mistake: it is red and never the default. `parent` may be null when no window is open.
    Alert(const AlertWords& words, const QString& icon_name, const QString& destructive_verb, QWidget* parent);

private:
    void lay_out(const AlertWords& words, const QString& icon_name, QLayout* buttons);
    QLayout* make_buttons(const QString& destructive_verb);
};

/// Opens an alert that cleans up after itself; `closed` is called once the user has read it.
Alert* show_alert(const AlertWords& words, QWidget* parent, std::function<void()> closed = {});

/// Asks before something is lost; `confirmed` is called when the user wants it.
Alert* ask_before(
    const AlertWords& words, const QString& destructive_verb, QWidget* parent, std::function<void()> confirmed);

} // namespace quillfern::desktop
