#include "desktop/qt_text.h"

namespace quillfern::desktop {

QString to_qt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace quillfern::desktop
