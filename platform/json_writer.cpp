#include "platform/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <utility>

namespace quillfern::platform {
namespace {

constexpr std::size_t indent = 2;

constexpr std::uint64_t every_byte(std::uint8_t byte)
{
    return 0x0101010101010101u * byte;
}

/// Nonzero when one of the eight bytes is below 0x20, a quotation mark or a backslash. (Alan Mycroft's test for a zero
/// byte, three times.)
std::uint64_t bytes_to_escape(std::uint64_t word)
{
    const auto zero_bytes = [](std::uint64_t w) { return (w - every_byte(1)) & ~w & every_byte(0x80); };
    const std::uint64_t control = (word - every_byte(0x20)) & ~word & every_byte(0x80);
    return control | zero_bytes(word ^ every_byte('"')) | zero_bytes(word ^ every_byte('\\'));
}

bool is_escaped(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// How many characters from the start need no escaping.
std::size_t plain_length(std::string_view text)
{
    std::size_t at = 0;
    for (std::uint64_t word; at + sizeof word <= text.size(); at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if (bytes_to_escape(word) != 0)
            break;
    }
    const auto stop = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), is_escaped);
    return static_cast<std::size_t>(stop - text.begin());
}

void append_escape(std::string& out, char c)
{
    switch (c) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        constexpr std::string_view digits = "0123456789abcdef";
        out += "\\u00";
        out += digits[static_cast<std::size_t>(c) >> 4];
        out += digits[static_cast<std::size_t>(c) & 15];
    }
}

} // namespace

/// Starts the next line of the innermost bracket and makes `room` bytes behind its indentation.
char* JsonWriter::next_line(std::size_t room)
{
    const std::size_t blanks = level_ * indent;
    const std::size_t old_size = text_.size();
    text_.resize(old_size + (empty_ ? 0 : 1) + 1 + blanks + room);
    char* out = text_.data() + old_size;
    if (!empty_)
        *out++ = ',';
    *out++ = '\n';
    std::memset(out, ' ', blanks);
    empty_ = false;
    return out + blanks;
}

void JsonWriter::begin(char bracket)
{
    text_ += bracket;
    ++level_;
    empty_ = true;
}

void JsonWriter::end(char bracket)
{
    --level_;
    if (!empty_) {
        text_ += '\n';
        text_.append(level_ * indent, ' ');
    }
    text_ += bracket;
    empty_ = false;
}

void JsonWriter::key(std::string_view name)
{
    char* out = next_line(name.size() + 4);
    *out++ = '"';
    std::memcpy(out, name.data(), name.size());
    std::memcpy(out + name.size(), "\": ", 3);
}

void JsonWriter::any_key(std::string_view name)
{
    next_line(0);
    append_escaped(name);
    text_ += ": ";
}

void JsonWriter::text(std::string_view value)
{
    append_escaped(value);
}

void JsonWriter::plain_text(std::string_view value)
{
    const std::size_t old_size = text_.size();
    text_.resize(old_size + value.size() + 2);
    char* out = text_.data() + old_size;
    *out++ = '"';
    std::memcpy(out, value.data(), value.size());
    out[value.size()] = '"';
}

void JsonWriter::integer(std::int64_t value)
{
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text_.append(digits.data(), end);
}

void JsonWriter::append_escaped(std::string_view value)
{
    text_ += '"';
    while (true) {
        const std::size_t plain = plain_length(value);
        text_.append(value.substr(0, plain));
        if (plain == value.size())
            break;
        append_escape(text_, value[plain]);
        value.remove_prefix(plain + 1);
    }
    text_ += '"';
}

std::string JsonWriter::finish() &&
{
    text_ += '\n';
    return std::move(text_);
}

} // namespace quillfern::platform
