#include "desktop/type.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quillfern::desktop {
namespace {

struct StyleShape {
    double size;
    double line;
    QFont::Weight weight;
};

constexpr std::array<StyleShape, 15> shapes = {{
    {24, 30, QFont::DemiBold},
    {18, 24, QFont::DemiBold},
    {16, 22, QFont::DemiBold},
    {22, 28, QFont::DemiBold},
    {15, 22, QFont::DemiBold},
    {14, 20, QFont::Normal},
    {14, 20, QFont::Medium},
    {14, 20, QFont::DemiBold},
    {13, 18, QFont::Normal},
    {13, 18, QFont::Medium},
    {13, 18, QFont::DemiBold},
    {12.5, 16, QFont::Normal},
    {12.5, 16, QFont::DemiBold},
    {15.5, 25, QFont::Normal},
    {17, 25, QFont::DemiBold},
}};

const StyleShape& shape(TextStyle style)
{
    return shapes[static_cast<std::size_t>(style)];
}

/// The first paint of a large desktop font must not shrink anything: below the design size nothing changes.
double scale_of_desktop_font()
{
    const double design_points = 10.5;
    const double points = QGuiApplication::font().pointSizeF();
    return points > 0 ? std::clamp(points / design_points, 1.0, 1.5) : 1.0;
}

QFont make_font(TextStyle style)
{
    QFont font = QGuiApplication::font();
    QStringList families = font.families();
    families.prepend(QStringLiteral("Inter"));
    if (style == TextStyle::title)
        families.prepend(QStringLiteral("Inter Display"));
    font.setFamilies(families);
    font.setWeight(shape(style).weight);
    const double points_of_pixel = 72.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    font.setPointSizeF(shape(style).size * ui_scale() * points_of_pixel);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

double ui_scale()
{
    static const double scale = scale_of_desktop_font();
    return scale;
}

int scaled(double length)
{
    return static_cast<int>(std::lround(length * ui_scale()));
}

const QFont& text_font(TextStyle style)
{
    static const auto fonts = [] {
        std::array<QFont, shapes.size()> all;
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = make_font(static_cast<TextStyle>(i));
        return all;
    }();
    return fonts[static_cast<std::size_t>(style)];
}

int line_height(TextStyle style)
{
    return scaled(shape(style).line);
}

} // namespace quillfern::desktop
