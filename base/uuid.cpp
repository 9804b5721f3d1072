#include "base/uuid.h"

namespace quillfern {
namespace {

constexpr std::size_t text_length = 36;

constexpr bool is_hyphen_place(std::size_t index)
{
    return index == 8 || index == 13 || index == 18 || index == 23;
}

constexpr auto digit_values = [] {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 10; ++i)
        values[static_cast<std::size_t>('0' + i)] = static_cast<std::int8_t>(i);
    for (int i = 0; i < 6; ++i) {
        values[static_cast<std::size_t>('a' + i)] = static_cast<std::int8_t>(10 + i);
        values[static_cast<std::size_t>('A' + i)] = static_cast<std::int8_t>(10 + i);
    }
    return values;
}();

int digit_value(char c)
{
    return digit_values[static_cast<unsigned char>(c)];
}

void write(const Uuid& uuid, char* out, const char* digits)
{
    std::size_t at = 0;
    for (const std::uint8_t byte : uuid.bytes) {
        if (is_hyphen_place(at))
            out[at++] = '-';
        out[at++] = digits[byte >> 4];
        out[at++] = digits[byte & 15];
    }
}

} // namespace

std::optional<Uuid> Uuid::parse(std::string_view text)
{
    if (text.size() != text_length)
        return std::nullopt;
    Uuid uuid;
    std::size_t at = 0;
    for (std::uint8_t& byte : uuid.bytes) {
        if (is_hyphen_place(at) && text[at++] != '-')
            return std::nullopt;
        const int high = digit_value(text[at]);
        const int low = digit_value(text[at + 1]);
        if ((high | low) < 0)
            return std::nullopt;
        byte = static_cast<std::uint8_t>(high << 4 | low);
        at += 2;
    }
    return uuid;
}

void write_uuid(const Uuid& uuid, char* out)
{
    write(uuid, out, "0123456789ABCDEF");
}

void write_lower_uuid(const Uuid& uuid, char* out)
{
    write(uuid, out, "0123456789abcdef");
}

std::string Uuid::text() const
{
    std::string text(text_length, '\0');
    write_uuid(*this, text.data());
    return text;
}

std::string Uuid::lower_text() const
{
    std::string text(text_length, '\0');
    write_lower_uuid(*this, text.data());
    return text;
}

} // namespace quillfern
