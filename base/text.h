#pragma once

#include <string_view>

namespace quillfern {

/// The language of a generated text. It belongs to the document that is being made, not to the desktop.
enum class Lang { en, es };

/// One text in both languages. Tables of these stand beside the code that prints them; a missing translation does not
/// compile.
struct Text {
    std::string_view en;
    std::string_view es;

    consteval Text(std::string_view english, std::string_view spanish) : en(english), es(spanish)
    {
        if (english.empty() || spanish.empty())
            throw "both languages need a text";
    }

    constexpr std::string_view operator()(Lang lang) const { return lang == Lang::en ? en : es; }
};

} // namespace quillfern
