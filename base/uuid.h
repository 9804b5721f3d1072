#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern {

/// A 128-bit identifier (RFC 4122). Files hold its canonical 36-character text in upper case; either case is read, and
/// two spellings of one UUID are the same identifier. The default value is the nil UUID.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// Absent unless `text` is exactly 8-4-4-4-12 hexadecimal digits.
    static std::optional<Uuid> parse(std::string_view text);

    std::string text() const;
    std::string lower_text() const;

    friend bool operator==(const Uuid&, const Uuid&) = default;
    friend auto operator<=>(const Uuid&, const Uuid&) = default;
};

/// Writes the 36 characters of the upper-case text to `out`, without a terminator.
void write_uuid(const Uuid& uuid, char* out);

/// The same in lower case.
void write_lower_uuid(const Uuid& uuid, char* out);

} // namespace quillfern

template <>
struct std::hash<quillfern::Uuid> {
    std::size_t operator()(const quillfern::Uuid& uuid) const noexcept
    {
        std::size_t words[2];
        static_assert(sizeof words == sizeof uuid.bytes);
        std::memcpy(words, uuid.bytes.data(), sizeof words);
        return words[0] ^ (words[1] * 0x9E3779B97F4A7C15u);
    }
};
