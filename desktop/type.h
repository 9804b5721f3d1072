#pragma once

#include <QFont>

namespace quillfern::desktop {

/// The few sizes and weights of type. Line heights belong to the style: text is set in boxes of that height, so that
/// rows line up whatever the letters are.
enum class TextStyle {
    title, ///< page and grant titles, 24/30
    sheetTitle, ///< sheets, 18/24
    alertTitle, ///< alerts and empty states, 16/22
    figure, ///< stat tiles, 22/28
    heading, ///< cards and buckets, 15/22
    body, ///< 14/20
    bodyMedium, ///< buttons, row titles in forms, 14/20
    bodyStrong, ///< titles in lists, 14/20
    second, ///< second lines, hints, 13/18
    secondMedium, ///< chips, 13/18
    secondStrong, ///< how late or how soon, 13/18
    caption, ///< the sidebar's second lines, 12.5/16
    captionStrong, ///< badges, 12.5/16
    reading, ///< running text, as in help, 15.5/25
    readingStrong, ///< headings in running text, 17/25
};

/// Inter (Inter Display for titles) where it is installed, else the desktop's own font.
const QFont& text_font(TextStyle style);

/// The height of the style's line box, in logical pixels.
int line_height(TextStyle style);

/// How much larger than designed everything is drawn, from 1 to 1.5, after the desktop's font size. Fixed once the
/// first font or length has been asked for.
double ui_scale();

/// A length of the design, in logical pixels.
int scaled(double length);

} // namespace quillfern::desktop
