#include "app/window/window_placement.h"

#include <QSettings>

namespace quillfern::app {
namespace {

const QString geometry_key = QStringLiteral("window/geometry");
const QString sidebar_key = QStringLiteral("window/sidebarOpen");
const QString sidebar_width_key = QStringLiteral("window/sidebarWidth");

} // namespace

WindowPlacement last_placement()
{
    const QSettings settings;
    WindowPlacement placement;
    placement.geometry = settings.value(geometry_key).toByteArray();
    if (settings.contains(sidebar_key))
        placement.sidebarOpen = settings.value(sidebar_key).toBool();
    placement.sidebarWidth = settings.value(sidebar_width_key).toInt();
    return placement;
}

void remember_placement(const WindowPlacement& placement)
{
    QSettings settings;
    settings.setValue(geometry_key, placement.geometry);
    settings.setValue(sidebar_width_key, placement.sidebarWidth);
    if (placement.sidebarOpen)
        settings.setValue(sidebar_key, *placement.sidebarOpen);
}

} // namespace quillfern::app
