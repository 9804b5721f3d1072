#include "grants/ics_lines.h"

#include <array>

namespace quillfern::grants {

namespace {

enum class Treatment : unsigned char { asIs, escape, lineBreak, blank, maybeC1 };

constexpr auto treatments = [] {
    std::array<Treatment, 256> table{};
    for (std::size_t control = 0; control < 0x20; ++control)
        table[control] = Treatment::blank;
    table['\t'] = Treatment::asIs;
    table['\n'] = Treatment::lineBreak;
    table['\r'] = Treatment::lineBreak;
    table[0x7F] = Treatment::blank;
    table['\\'] = Treatment::escape;
    table[';'] = Treatment::escape;
    table[','] = Treatment::escape;
    table[0xC2] = Treatment::maybeC1; // C1 controls are C2 80 to C2 9F in UTF-8
    return table;
}();

unsigned char byte_at(std::string_view text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

bool is_continuation(std::string_view text, std::size_t position)
{
    return (byte_at(text, position) & 0xC0) == 0x80;
}

/// The start of the character that `position` is in; `position` itself where the bytes are not UTF-8.
std::size_t character_start(std::string_view text, std::size_t position)
{
    for (std::size_t back = 0; back < 4; ++back)
        if (!is_continuation(text, position - back))
            return position - back;
    return position;
}

} // namespace

void append_ics_text(std::string& out, std::string_view text)
{
    std::size_t from = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const Treatment treatment = treatments[byte_at(text, at)];
        if (treatment == Treatment::asIs)
            continue;
        const bool two_bytes_c1 = treatment == Treatment::maybeC1 && at + 1 < text.size()
            && byte_at(text, at + 1) >= 0x80 && byte_at(text, at + 1) <= 0x9F;
        if (treatment == Treatment::maybeC1 && !two_bytes_c1)
            continue;
        out.append(text, from, at - from);
        from = at + 1;
        if (treatment == Treatment::escape) {
            out += '\\';
            from = at;
        } else if (treatment == Treatment::lineBreak) {
            out += "\\n";
            if (text.substr(at).starts_with("\r\n"))
                from = ++at + 1;
        } else {
            out += ' ';
            if (two_bytes_c1)
                from = ++at + 1;
        }
    }
    out.append(text, from);
}

void ICSLines::fold()
{
    const std::string line = out_.substr(start_);
    out_.resize(start_);
    std::size_t at = 0;
    std::size_t room = longest_line;
    while (line.size() - at > room) {
        const std::size_t cut = character_start(line, at + room);
        out_.append(line, at, cut - at);
        out_ += line_end;
        out_ += ' ';
        at = cut;
        room = longest_line - 1;
    }
    out_.append(line, at);
}

} // namespace quillfern::grants
