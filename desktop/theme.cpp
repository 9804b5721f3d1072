#include "desktop/theme.h"

#include "desktop/style.h"
#include "desktop/type.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QPalette>
#include <QToolTip>

namespace quillfern::desktop {
namespace {

// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
const QString portal_service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portal_path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings_interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString scheme_key = QStringLiteral("color-scheme");
constexpr uint prefers_dark = 1;
constexpr uint prefers_light = 2;

QPalette palette_of_tokens()
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, Role token) { palette.setColor(role, color(token)); };
    set(QPalette::Window, Role::window);
    set(QPalette::WindowText, Role::text);
    set(QPalette::Base, Role::card);
    set(QPalette::AlternateBase, Role::cardAlt);
    set(QPalette::Text, Role::text);
    set(QPalette::Button, Role::card);
    set(QPalette::ButtonText, Role::text);
    set(QPalette::BrightText, Role::onAccent);
    set(QPalette::Highlight, Role::accentTint);
    set(QPalette::HighlightedText, Role::onAccentTint);
    set(QPalette::Link, Role::accent);
    set(QPalette::LinkVisited, Role::accent);
    set(QPalette::PlaceholderText, Role::text3);
    set(QPalette::ToolTipBase, Role::toastBg);
    set(QPalette::ToolTipText, Role::toastText);
    set(QPalette::Light, Role::card);
    set(QPalette::Midlight, Role::hairline);
    set(QPalette::Mid, Role::hairline2);
    set(QPalette::Dark, Role::border);
    set(QPalette::Shadow, Role::border);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, color(Role::text3));
    return palette;
}

/// A variant in a variant, as the portal's older Read call nests it, holds the same value.
uint portal_value(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

} // namespace

Theme::Theme(QApplication& application, Choice choice)
    : QObject(&application), application_(application), choice_(choice)
{
    ui_scale(); // while the desktop's font is still the application's
    read_desktop_palette();
    QApplication::setStyle(new Style);
    QApplication::setFont(text_font(TextStyle::body));
    apply();
    application.installEventFilter(this);
}

void Theme::choose(Choice choice)
{
    choice_ = choice;
    apply();
}

void Theme::follow_portal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(portal_service, portal_path, settings_interface, QStringLiteral("SettingChanged"), this,
        SLOT(take_portal_setting(QString, QString, QDBusVariant)));
    QDBusMessage ask =
        QDBusMessage::createMethodCall(portal_service, portal_path, settings_interface, QStringLiteral("Read"));
    ask << appearance << scheme_key;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take_portal_setting(appearance, scheme_key, reply.value());
        answer->deleteLater();
    });
}

void Theme::take_portal_setting(const QString& space, const QString& key, const QDBusVariant& value)
{
    if (space != appearance || key != scheme_key)
        return;
    const uint wish = portal_value(value.variant());
    if (wish != prefers_dark && wish != prefers_light)
        return;
    desktop_scheme_ = wish == prefers_dark ? Scheme::dark : Scheme::light;
    apply();
}

bool Theme::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ThemeChange && !applying_) {
        read_desktop_palette();
        apply();
    }
    return QObject::eventFilter(watched, event);
}

void Theme::read_desktop_palette()
{
    applying_ = true;
    QApplication::setPalette(QPalette()); // back to the desktop's, if ours was set
    const QPalette desktop = QGuiApplication::palette();
    desktop_scheme_ = desktop.color(QPalette::Window).lightness() < 128 ? Scheme::dark : Scheme::light;
    applying_ = false;
}

void Theme::apply()
{
    const Scheme before = current_scheme();
    const Scheme chosen = choice_ == Choice::light ? Scheme::light
        : choice_ == Choice::dark                  ? Scheme::dark
                                                   : desktop_scheme_;
    set_current_scheme(chosen);
    applying_ = true;
    const QPalette palette = palette_of_tokens();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    QPalette menus = palette;
    menus.setColor(QPalette::Window, color(Role::card)); // the lists of combo boxes take it over
    QApplication::setPalette(menus, "QMenu");
    QPalette texts = palette;
    texts.setColor(QPalette::Highlight, color(Role::accentTint2)); // what is selected must stand out from the card
    for (const char* field : {"QLineEdit", "QTextEdit"})
        QApplication::setPalette(texts, field);
    applying_ = false;
    if (chosen != before)
        Q_EMIT scheme_changed();
}

Theme::Choice scheme_choice(const QString& text)
{
    if (text == QLatin1String("light"))
        return Theme::Choice::light;
    return text == QLatin1String("dark") ? Theme::Choice::dark : Theme::Choice::system;
}

} // namespace quillfern::desktop
