#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillfern::grants {

/// Appends a TEXT value as RFC 5545, 3.3.11 has it: backslash, semicolon and comma escaped, any line break written \n.
///
/// A title may hold what a calendar file must not: the other control characters (C0 but for the tab, DEL and C1) become
/// a blank, so that the words around them stay apart.
void append_ics_text(std::string& out, std::string_view text);

/// Writes the content lines of RFC 5545, 3.1: a line of more than 75 octets is folded into pieces of that length, its
/// continuations beginning with a blank, and no UTF-8 character is split.
///
///     ICSLines lines(out);
///     lines.begin("SUMMARY:");
///     append_ics_text(out, title);
///     lines.end();
class ICSLines {
public:
    explicit ICSLines(std::string& out) : out_(out) { }

    void begin(std::string_view name)
    {
        start_ = out_.size();
        out_ += name;
    }

    void end()
    {
        if (out_.size() - start_ > longest_line)
            fold();
        out_ += line_end;
    }

    void line(std::string_view text)
    {
        begin(text);
        end();
    }

private:
    static constexpr std::size_t longest_line = 75;
    static constexpr std::string_view line_end = "\r\n";

    void fold();

    std::string& out_;
    std::size_t start_ = 0;
};

} // namespace quillfern::grants
