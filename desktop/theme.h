#pragma once

#include "desktop/tokens.h"

#include <QObject>

class QApplication;
class QDBusVariant;

namespace quillfern::desktop {

/// Gives the application its look and keeps it in the scheme that the user has chosen.
///
/// The desktop's wish is read twice: from the desktop's own palette before ours is set (dark when its windows are),
/// and, once the first window is up, from the settings portal, which also tells of later changes. A choice other than
/// `system` stands above both.
class Theme : public QObject {
    Q_OBJECT
public:
    enum class Choice { system, light, dark };

    /// To be made before the first widget; one an application.
    Theme(QApplication& application, Choice choice);

    /// Asks the settings portal, without waiting for its answer, and listens to it from then on.
    void follow_portal();

    void choose(Choice choice);

Q_SIGNALS:
    void scheme_changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void take_portal_setting(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void read_desktop_palette();
    void apply();

    QApplication& application_;
    Choice choice_;
    Scheme desktop_scheme_ = Scheme::light;
    bool applying_ = false;
};

/// "system", "light" or "dark"; anything else is the desktop's own scheme.
Theme::Choice scheme_choice(const QString& text);

} // namespace quillfern::desktop
