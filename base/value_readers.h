#pragma once

#include "base/case_names.h"
#include "base/read_state.h"
#include "base/shared.h"
#include "base/text_value.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

/// Readers of single values, lists, maps and enumerations, from any source of values (see base/record_reader.h).
namespace quillfern {

enum class ValueKind { null, boolean, number, string, array, object };

constexpr std::string_view kind_name(ValueKind kind)
{
    constexpr std::array<std::string_view, 6> words{"null", "a boolean", "a number", "a text", "a list", "an object"};
    return words[static_cast<std::size_t>(kind)];
}

template <class Value, class T>
bool read(Value& value, T& out);

namespace detail {

template <class T>
inline constexpr bool is_optional = false;
template <class T>
inline constexpr bool is_optional<std::optional<T>> = true;
template <class T>
inline constexpr bool is_vector = false;
template <class T>
inline constexpr bool is_vector<std::vector<T>> = true;
template <class T>
inline constexpr bool is_shared = false;
template <class T>
inline constexpr bool is_shared<Shared<T>> = true;
template <class T>
inline constexpr bool is_variant = false;
template <class... T>
inline constexpr bool is_variant<std::variant<T...>> = true;
template <class T>
inline constexpr bool is_map = false;
template <class T>
inline constexpr bool is_map<std::map<std::string, T>> = true;

template <class Value>
bool wrong_kind(Value& value, std::string_view expected)
{
    return value.state().fail(
        value.place(), "Expected " + std::string(expected) + ", found " + std::string(kind_name(value.kind())));
}

template <class Value, class T>
bool read_text_value(Value& value, T& out)
{
    if (value.kind() == ValueKind::string) {
        std::string_view text;
        if (!value.text(text))
            return false;
        if (const auto parsed = TextValue<T>::parse(text)) {
            out = *parsed;
            return true;
        }
        return value.state().fail(value.place(), TextValue<T>::problem(text));
    }
    if constexpr (requires { TextValue<T>::parse_number(std::string_view()); }) {
        if (value.kind() == ValueKind::number) {
            const std::string_view number = value.number_text();
            if (const auto parsed = TextValue<T>::parse_number(number)) {
                out = *parsed;
                return true;
            }
            return value.state().fail(value.place(), TextValue<T>::problem(number));
        }
    }
    if constexpr (requires { TextValue<T>::other_kind; })
        return value.state().fail(value.place(), std::string(TextValue<T>::other_kind));
    return wrong_kind(value, "a text");
}

template <class Value, NamedEnum E>
bool read_case(Value& value, E& out)
{
    if (value.kind() != ValueKind::string)
        return wrong_kind(value, "a text");
    std::string_view text;
    if (!value.text(text))
        return false;
    if (const std::optional<E> named = case_named<E>(text)) {
        out = *named;
        return true;
    }
    return value.state().fail(value.place(), "Unknown value: " + std::string(text));
}

/// Reads the payload of the case that has the name.
template <class Value, class... Case>
bool read_payload(std::string_view name, Value& value, std::variant<Case...>& out)
{
    using Variant = std::variant<Case...>;
    std::optional<bool> readable;
    const auto try_case = [&]<std::size_t I>() {
        if (case_names<Variant>[I] != name)
            return;
        std::variant_alternative_t<I, Variant> payload{};
        value.state().enter(case_names<Variant>[I]);
        readable = read(value, payload);
        if (*readable)
            out = std::move(payload);
    };
    [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        (try_case.template operator()<I>(), ...);
    }
    (std::index_sequence_for<Case...>());
    return readable ? *readable : value.state().fail(value.place(), "Unknown value: " + std::string(name));
}

/// An enumeration with payloads is an object with one key, the case's name; the value under it holds the payload. More
/// or fewer keys are the first thing to say of it, whatever they hold.
template <class Value, class... Case>
bool read_variant(Value& value, std::variant<Case...>& out)
{
    if (value.kind() != ValueKind::object)
        return wrong_kind(value, "an object");
    ReadState& state = value.state();
    const std::size_t depth = state.depth();
    std::size_t count = 0;
    bool readable = false;
    const bool walked = value.each_member([&](auto key, Value member) {
        if (++count > 1)
            return member.skip();
        readable = read_payload(key.text(), member, out);
        if (!readable)
            member.abandon();
        return !state.document_failed();
    });
    if (!walked)
        return false;
    if (count == 1 && !readable)
        return false;
    state.leave_to(depth);
    return count == 1 || state.fail(value.place(), "Invalid number of keys found, expected one.");
}

template <class Value, class T>
bool read_list(Value& value, std::vector<T>& out, bool keep_going)
{
    if (value.kind() != ValueKind::array)
        return wrong_kind(value, "a list");
    std::size_t index = 0;
    return value.each_element([&](Value element) {
        ReadState& state = value.state();
        const std::size_t depth = state.depth();
        state.enter(index++);
        if (!read(element, out.emplace_back())) {
            out.pop_back();
            if (!keep_going || state.document_failed())
                return false;
            state.forgive(depth + 1, "left out");
            element.abandon();
        }
        state.leave_to(depth);
        return true;
    });
}

template <class Value, class T>
bool read_map(Value& value, std::map<std::string, T>& out)
{
    if (value.kind() != ValueKind::object)
        return wrong_kind(value, "an object");
    return value.each_member([&](auto key, Value member) {
        const auto [at, is_new] = out.try_emplace(std::string(key.text()));
        ReadState& state = value.state();
        const std::size_t depth = state.depth();
        state.enter(at->first);
        if (!is_new)
            return state.fail(member.place(), "Duplicate key", Failing::document);
        if (!read(member, at->second))
            return false;
        state.leave_to(depth);
        return true;
    });
}

} // namespace detail
} // namespace quillfern
