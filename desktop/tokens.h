#pragma once

#include <QColor>

#include <array>
#include <cstddef>

namespace quillfern::desktop {

enum class Scheme { light, dark };

/// What a colour is for. Nothing is painted in a colour that has no role; the roles are listed with their contrast in
/// resources/tokens.json's two tables, one a scheme.
enum class Role {
    window,
    sidebar,
    page,
    card,
    cardAlt,
    hairline,
    hairline2,
    border,
    text,
    text2,
    text3,
    accent,
    accentFill,
    accentHover,
    accentPressed,
    onAccent,
    accentTint,
    accentTint2,
    onAccentTint,
    danger,
    dangerTint,
    onDangerTint,
    warn,
    warnTint,
    onWarnTint,
    info,
    infoTint,
    onInfoTint,
    neutral,
    badge,
    pipOff,
    chart,
    chartSoft,
    barBack,
    toastBg,
    toastText,
    scrim,
    scrollThumb,
};

inline constexpr std::size_t role_count = static_cast<std::size_t>(Role::scrollThumb) + 1;

/// The colours of one scheme.
class Tokens {
public:
    explicit Tokens(Scheme scheme);

    const QColor& operator[](Role role) const { return colors_[static_cast<std::size_t>(role)]; }

private:
    std::array<QColor, role_count> colors_;
};

const Tokens& tokens(Scheme scheme);

/// The scheme on the screen, and its colours. Read them when painting, never keep them: the scheme can change at any
/// time.
Scheme current_scheme();
void set_current_scheme(Scheme scheme);
inline const QColor& color(Role role)
{
    return tokens(current_scheme())[role];
}

} // namespace quillfern::desktop
