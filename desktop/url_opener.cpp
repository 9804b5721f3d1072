#include "desktop/url_opener.h"

#include <QDesktopServices>
#include <QUrl>

namespace quillfern::desktop {

bool DesktopUrlOpener::open(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

} // namespace quillfern::desktop
