#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillfern::grants {

/// A one-page PDF (US Letter) with a title and lines of text. `title` and `lines` are UTF-8; what Windows-1252 has not
/// is shown as a question mark.
std::string simple_pdf(std::string_view title, const std::vector<std::string>& lines);

} // namespace quillfern::grants
