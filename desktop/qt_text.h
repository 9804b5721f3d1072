#pragma once

#include <QString>

#include <string_view>

namespace quillfern::desktop {

/// The toolkit's form of a UTF-8 text.
QString to_qt(std::string_view text);

} // namespace quillfern::desktop
