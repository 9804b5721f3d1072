#include "base/line_endings.h"
#include "grants/ics_export.h"
#include "platform/text_decoding.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

using namespace quillfern;
using namespace quillfern::grants;

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

bool is_control(std::string_view text, std::size_t at)
{
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool c1 = byte == 0xC2 && at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) >= 0x80
        && static_cast<unsigned char>(text[at + 1]) <= 0x9F;
    return (byte < 0x20 && byte != '\t') || byte == 0x7F || c1;
}

/// What a calendar program should read where a record says `text`.
std::string meant(std::string_view text)
{
    const std::string lines = with_line_feeds(std::string(text));
    std::string out;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const bool blank = lines[at] != '\n' && is_control(lines, at);
        out += blank ? ' ' : lines[at];
        at += blank && lines[at] == '\xC2' ? 1 : 0;
    }
    return out;
}

/// Takes the file apart as RFC 5545, 3.1 says, holding every line to its length and characters.
std::vector<std::string> unfolded(std::string_view text, bool valid_utf8)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        check(end != std::string_view::npos && end <= 75);
        const std::string_view line = text.substr(0, end);
        for (std::size_t at = 0; at < line.size(); ++at)
            check(!is_control(line, at));
        check(!valid_utf8 || platform::is_valid_utf8(line));
        if (line.starts_with(' '))
            lines.back() += line.substr(1);
        else
            lines.emplace_back(line);
        text.remove_prefix(end + 2);
    }
    return lines;
}

std::string unescaped(std::string_view value)
{
    std::string out;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool escaped = value[at] == '\\';
        check(escaped || (value[at] != ',' && value[at] != ';'));
        at += escaped ? 1 : 0;
        check(at < value.size());
        out += escaped && value[at] == 'n' ? '\n' : value[at];
    }
    return out;
}

std::string value_of(const std::vector<std::string>& lines, std::string_view name)
{
    std::vector<std::string> values;
    for (const std::string& line : lines)
        if (line.starts_with(name))
            values.push_back(line.substr(name.size()));
    check(values.size() == 1);
    return unescaped(values.front());
}

} // namespace

/// Whatever the texts of an item, the file holds one event of lawful lines, and unfolding and unescaping give the texts
/// back. The input is cut into the texts at FF, which UTF-8 never has.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    AgendaItem item;
    item.id = "report-1";
    const std::size_t first_cut = input.find('\xFF');
    item.grantTitle = input.substr(0, first_cut);
    if (first_cut != std::string_view::npos)
        item.funderName = input.substr(first_cut + 1);

    const std::string text = ICSExport::text({item}, {}, {item.grantTitle, "USD", Lang::en, Instant{}});
    const bool valid = platform::is_valid_utf8(item.grantTitle) && platform::is_valid_utf8(item.funderName);
    const std::vector<std::string> lines = unfolded(text, valid);
    check(value_of(lines, "X-WR-CALNAME:") == meant(item.grantTitle));
    check(value_of(lines, "SUMMARY:") == "LOI due · " + meant(item.grantTitle));
    check(value_of(lines, "DESCRIPTION:")
        == "Grant: " + meant(item.grantTitle) + "\nFunder: " + meant(item.funderName) + "\nFrom Quillfern");
    check(lines.size() == 17 && lines[6] == "BEGIN:VEVENT" && lines.back() == "END:VCALENDAR");
    return 0;
}
