#include "desktop/tokens.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace quillfern::desktop {
namespace {

constexpr std::array<const char*, role_count> role_names = {
    "window",
    "sidebar",
    "page",
    "card",
    "cardAlt",
    "hairline",
    "hairline2",
    "border",
    "text",
    "text2",
    "text3",
    "accent",
    "accentFill",
    "accentHover",
    "accentPressed",
    "onAccent",
    "accentTint",
    "accentTint2",
    "onAccentTint",
    "danger",
    "dangerTint",
    "onDangerTint",
    "warn",
    "warnTint",
    "onWarnTint",
    "info",
    "infoTint",
    "onInfoTint",
    "neutral",
    "badge",
    "pipOff",
    "chart",
    "chartSoft",
    "barBack",
    "toastBg",
    "toastText",
    "scrim",
    "scrollThumb",
};

/// "#1E6B4B", or "rgba(22,30,25,0.34)" with the opacity from 0 to 1.
QColor parse_color(const QString& text)
{
    if (!text.startsWith(QLatin1String("rgba(")))
        return QColor(text);
    const QStringList parts = text.mid(5, text.size() - 6).split(QLatin1Char(','));
    if (parts.size() != 4)
        return {};
    QColor color(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
    color.setAlphaF(parts[3].toFloat());
    return color;
}

QJsonObject embedded_tables()
{
    QFile file(QStringLiteral(":/tokens.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the colour tables are not in the program");
    return QJsonDocument::fromJson(file.readAll()).object();
}

Scheme scheme_on_screen = Scheme::light;

} // namespace

Tokens::Tokens(Scheme scheme)
{
    static const QJsonObject tables = embedded_tables();
    const QJsonObject table = tables[QLatin1String(scheme == Scheme::light ? "light" : "dark")].toObject();
    for (std::size_t i = 0; i < role_count; ++i) {
        colors_[i] = parse_color(table[QLatin1String(role_names[i])].toString());
        if (!colors_[i].isValid())
            qFatal("the colour table has no usable \"%s\"", role_names[i]);
    }
}

const Tokens& tokens(Scheme scheme)
{
    if (scheme == Scheme::light) {
        static const Tokens light(Scheme::light);
        return light;
    }
    static const Tokens dark(Scheme::dark);
    return dark;
}

Scheme current_scheme()
{
    return scheme_on_screen;
}

void set_current_scheme(Scheme scheme)
{
    scheme_on_screen = scheme;
}

} // namespace quillfern::desktop
