#pragma once

#include "base/instant.h"
#include "base/uuid.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillfern {

/// A value that files hold as text. A specialisation has `static std::optional<T> parse(std::string_view)` and
/// `static std::string problem(std::string_view)`, the message for a text that does not parse; it may have
/// `static std::optional<T> parse_number(std::string_view)` when a JSON number is read as well, and
/// `static constexpr std::string_view other_kind`, the message for a value of any other kind.
template <class T>
struct TextValue;

template <class T>
concept HasTextValue = requires(std::string_view text)
{
    TextValue<T>::parse(text);
};

template <>
struct TextValue<Uuid> {
    static std::optional<Uuid> parse(std::string_view text) { return Uuid::parse(text); }
    static std::string problem(std::string_view text) { return "Not a UUID: " + std::string(text); }
};

template <>
struct TextValue<Instant> {
    static std::optional<Instant> parse(std::string_view text) { return Instant::parse(text); }
    static std::string problem(std::string_view text) { return "Not an ISO 8601 date:" + std::string(text); }
};

} // namespace quillfern
