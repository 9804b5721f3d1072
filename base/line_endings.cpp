#include "base/line_endings.h"

#include <cstddef>

namespace quillfern {

std::string with_line_feeds(std::string text)
{
    std::size_t to = text.find('\r');
    if (to == std::string::npos)
        return text;
    for (std::size_t from = to; from < text.size(); ++from) {
        if (text[from] != '\r')
            text[to++] = text[from];
        else if (from + 1 == text.size() || text[from + 1] != '\n')
            text[to++] = '\n';
    }
    text.resize(to);
    return text;
}

} // namespace quillfern
