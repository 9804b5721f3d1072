#pragma once

#include "desktop/tokens.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace quillfern::desktop {

/// One of our line icons (resources/icons, by file name without its ending) in the colour of a role of the scheme on
/// the screen, `size` logical pixels square, sharp at `device_pixel_ratio`. Each picture is drawn once and kept.
QPixmap icon_pixmap(const QString& name, Role role, int size, double device_pixel_ratio);

/// The same as an icon for buttons and menus. It is drawn when it is shown, in the scheme of that moment; disabled, in
/// `text3`.
QIcon line_icon(const QString& name, Role role = Role::text2);

/// The application's mark, for windows, task bars and the start window.
QIcon application_icon();

} // namespace quillfern::desktop
