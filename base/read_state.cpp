#include "base/read_state.h"

#include <algorithm>
#include <utility>

namespace quillfern {

std::string ReadState::path_text() const
{
    std::string text;
    for (const Step& step : path_) {
        if (step.key.data() == nullptr) {
            text += '[' + std::to_string(step.index) + ']';
            continue;
        }
        if (!text.empty())
            text += '.';
        text += step.key;
    }
    return text;
}

bool ReadState::fail(const char* place, std::string message, Failing failing)
{
    error_ = {path_text(), std::move(message), 0, 0};
    error_place_ = place;
    failing_ = failing;
    return false;
}

bool ReadState::fail_document()
{
    failing_ = Failing::document;
    return false;
}

void ReadState::locate_error(std::string_view text)
{
    if (error_place_ < text.data() || error_place_ > text.data() + text.size())
        return;
    const std::string_view before = text.substr(0, static_cast<std::size_t>(error_place_ - text.data()));
    error_.line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t line_start = before.rfind('\n') + 1; // npos + 1 is the start of the text
    error_.column = 1 + before.size() - line_start;
}

void ReadState::forgive(std::size_t depth, std::string_view instead)
{
    leave_to(depth);
    const std::string here = path_text();
    notes.push_back(error_.path == here ? error_.text() + "; " + std::string(instead)
                                        : here + ": " + std::string(instead) + " (" + error_.text() + ")");
    error_ = {};
    error_place_ = nullptr;
}

void ReadState::note(std::string_view sentence)
{
    const std::string path = path_text();
    notes.push_back(path.empty() ? std::string(sentence) : path + ": " + std::string(sentence));
}

} // namespace quillfern
