#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillfern::app {

/// "1 grant", "13 grants"
inline std::string count_words(std::size_t count, std::string_view one)
{
    std::string words = std::to_string(count) + ' ';
    words += one;
    return count == 1 ? words : words + 's';
}

} // namespace quillfern::app
