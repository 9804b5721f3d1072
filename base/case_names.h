#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>

namespace quillfern {

/// The names by which files spell the cases of an enumeration, or the alternatives of an enumeration with payloads (a
/// std::variant), in declaration order. One specialisation stands beside each such type:
///
///     template <>
///     inline constexpr auto case_names<ReportStatus> = names("notStarted", "drafting", "submitted");
template <class T>
inline constexpr std::nullptr_t case_names = nullptr;

template <class... Name>
consteval std::array<std::string_view, sizeof...(Name)> names(const Name&... name)
{
    return {std::string_view(name)...};
}

template <class T>
concept NamedEnum = std::is_enum_v<T> && !std::is_same_v<std::remove_const_t<decltype(case_names<T>)>, std::nullptr_t>;

template <NamedEnum E>
constexpr std::string_view case_name(E value)
{
    return case_names<E>[static_cast<std::size_t>(value)];
}

template <NamedEnum E>
constexpr std::optional<E> case_named(std::string_view name)
{
    for (std::size_t i = 0; i < case_names<E>.size(); ++i)
        if (case_names<E>[i] == name)
            return static_cast<E>(i);
    return std::nullopt;
}

} // namespace quillfern
