#include "base/read_notes.h"

namespace quillfern {

std::string ReadError::text() const
{
    std::string text = path.empty() ? message : path + ": " + message;
    if (line > 0)
        text += " (line " + std::to_string(line) + ", column " + std::to_string(column) + ")";
    return text;
}

} // namespace quillfern
