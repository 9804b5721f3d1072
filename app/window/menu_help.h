#pragma once

#include "app/window/commands.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillfern::app {

/// The help item that every menu bar has in place of a desktop's own: it is called by the program's name, and opens the
/// program's own help.
struct MenuHelp {
    static constexpr std::string_view appName = "Quillfern";

    std::string_view shortcut;
    void (*action)(CommandTarget& target);

    /// "Quillfern Help"
    static constexpr std::string_view title() { return {letters.data(), letters.size()}; }

private:
    static constexpr std::string_view what = " Help";
    static constexpr auto letters = [] {
        std::array<char, appName.size() + what.size()> text{};
        std::copy(what.begin(), what.end(), std::copy(appName.begin(), appName.end(), text.begin()));
        return text;
    }();
};

inline constexpr MenuHelp menu_help = {"F1", [](CommandTarget& target) { target.show_help(); }};

} // namespace quillfern::app
