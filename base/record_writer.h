#pragma once

#include "base/case_names.h"
#include "base/fields.h"
#include "base/instant.h"
#include "base/shared.h"
#include "base/uuid.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// Writes records by their field lists, keys sorted, absent optionals left out.
///
/// A sink (platform/json_writer.h has the one that makes JSON text) offers `begin_object()`, `end_object()`,
/// `begin_list()`, `end_list()`, `key(name)`, `any_key(name)` for one that may need escaping, `next_element()`,
/// `text(value)`, `plain_text(value)` for text that needs no escaping, `integer(value)`, `boolean(value)` and
/// `raw(json)`.
namespace quillfern {

/// The text by which files hold a value. A specialisation has `static void write(Sink&, const T&)`.
template <class T>
struct ValueText;

template <class T, class Sink>
concept HasValueText = requires(Sink& sink, const T& value)
{
    ValueText<T>::write(sink, value);
};

template <>
struct ValueText<Uuid> {
    static void write(auto& sink, const Uuid& uuid)
    {
        char text[36];
        write_uuid(uuid, text);
        sink.plain_text({text, sizeof text});
    }
};

template <>
struct ValueText<Instant> {
    static void write(auto& sink, Instant instant) { sink.plain_text(instant.text()); }
};

template <class Sink, class T>
void write(Sink& sink, const T& value);

namespace detail {

template <class T>
bool is_absent(const T&)
{
    return false;
}
template <class T>
bool is_absent(const std::optional<T>& value)
{
    return !value.has_value();
}

template <class Sink, class T>
void write_member(Sink& sink, std::string_view key, const T& value)
{
    if (is_absent(value))
        return;
    sink.key(key);
    write(sink, value);
}

} // namespace detail

/// A key that is printed with a record but is not part of it (the bucket of an agenda item).
template <class T>
struct Extra {
    std::string_view key;
    const T& value;
};

namespace detail {

/// Extras whose keys lie between two keys of the record; an empty `before` means the end.
template <class Sink, class... E>
void write_extras(Sink& sink, std::string_view after, std::string_view before, const Extra<E>&... extra)
{
    const auto write_if_between = [&](const auto& one) {
        if (after < one.key && (before.empty() || one.key < before))
            write_member(sink, one.key, one.value);
    };
    (write_if_between(extra), ...);
}

template <std::size_t I, class T>
inline constexpr const auto& sorted_field = std::get<fields<T>.sorted[I]>(fields<T>.all);

} // namespace detail

/// Writes a record as an object, extras (given in the order of their keys) at their sorted places among its own keys.
template <class Sink, Record T, class... E>
void write_record(Sink& sink, const T& record, const Extra<E>&... extra)
{
    std::string_view last_key;
    const auto write_field = [&](const auto& field) {
        if constexpr (sizeof...(extra) > 0)
            detail::write_extras(sink, std::exchange(last_key, field.key), field.key, extra...);
        detail::write_member(sink, field.key, record.*field.member);
    };
    sink.begin_object();
    [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        (write_field(detail::sorted_field<I, T>), ...);
    }
    (std::make_index_sequence<fields<T>.size>());
    if constexpr (sizeof...(extra) > 0)
        detail::write_extras(sink, last_key, {}, extra...);
    sink.end_object();
}

namespace detail {

template <class Sink, class T>
void write_list(Sink& sink, const std::vector<T>& list)
{
    sink.begin_list();
    for (const auto& element : list) {
        sink.next_element();
        write(sink, element);
    }
    sink.end_list();
}

template <class Sink, class T>
void write_map(Sink& sink, const std::map<std::string, T>& map)
{
    sink.begin_object();
    for (const auto& [key, value] : map) {
        sink.any_key(key);
        write(sink, value);
    }
    sink.end_object();
}

template <class Sink, class... Case>
void write_variant(Sink& sink, const std::variant<Case...>& value)
{
    sink.begin_object();
    sink.key(case_names<std::variant<Case...>>[value.index()]);
    std::visit([&](const auto& payload) { write(sink, payload); }, value);
    sink.end_object();
}

} // namespace detail

template <class Sink, class T>
void write_value(Sink& sink, const std::vector<T>& value)
{
    detail::write_list(sink, value);
}
template <class Sink, class T>
void write_value(Sink& sink, const std::map<std::string, T>& value)
{
    detail::write_map(sink, value);
}
template <class Sink, class... Case>
void write_value(Sink& sink, const std::variant<Case...>& value)
{
    detail::write_variant(sink, value);
}
template <class Sink, class T>
void write_value(Sink& sink, const Shared<T>& value)
{
    write(sink, *value);
}
template <class Sink, class T>
void write_value(Sink& sink, const std::optional<T>& value)
{
    write(sink, *value);
}
template <class Sink, class T>
void write(Sink& sink, const T& value)
{
    if constexpr (HasValueText<T, Sink>) {
        ValueText<T>::write(sink, value);
    } else if constexpr (Record<T>) {
        write_record(sink, value);
    } else if constexpr (NamedEnum<T>) {
        sink.plain_text(case_name(value));
    } else if constexpr (std::is_same_v<T, std::string>) {
        sink.text(value);
    } else if constexpr (std::is_same_v<T, bool>) {
        sink.boolean(value);
    } else if constexpr (std::is_integral_v<T>) {
        sink.integer(static_cast<std::int64_t>(value));
    } else {
        write_value(sink, value);
    }
}

} // namespace quillfern
