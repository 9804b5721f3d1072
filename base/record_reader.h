#pragma once

#include "base/fields.h"
#include "base/value_readers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// Reads records by their field lists from any source of values.
///
/// A source value (platform/json_reader.h has the one over JSON text) offers `state()`, `kind()`, `place()`,
/// `text(out)`, `boolean(out)`, `integer(out)`, `number_text()`, `each_member(f(key, value))`,
/// `each_element(f(value))`, `skip()`, which reads past a value and checks it, and `abandon()`, for one of which an
/// unreadable part was forgiven. They return false when reading has failed; the failure is in the state. A member's key
/// offers `is(name)`, `is_before(name)`, `text()` and `place()`.
namespace quillfern {

/// Which keys of a record a read has found readable.
template <class T>
struct SeenKeys {
    std::uint64_t bits = 0; ///< by place in the field list

    bool has(std::string_view key) const { return bits >> fields<T>.index_of(key) & 1; }
};

namespace detail {

/// Keys that a record does not know, remembered so that a duplicate is noticed.
class OtherKeys {
public:
    bool insert(std::string_view key) { return keys_.emplace(key).second; }

private:
    std::set<std::string, std::less<>> keys_;
};

template <class T, std::size_t I>
inline constexpr const auto& field_at = std::get<I>(fields<T>.all);

template <class Value, class T, std::size_t I>
bool read_field(Value& value, T& record, SeenKeys<T>& seen)
{
    constexpr auto& field = field_at<T, I>;
    using Member = typename std::remove_cvref_t<decltype(field)>::MemberType;
    Member& member = record.*field.member;
    ReadState& state = value.state();
    const std::size_t depth = state.depth();
    state.enter(field.key);

    bool readable;
    if constexpr (field.policy == ReadPolicy::lenientEach && is_vector<Member>)
        readable = read_list(value, member, true);
    else
        readable = read(value, member);
    if (readable) {
        seen.bits |= std::uint64_t(1) << I;
        state.leave();
        return true;
    }
    if constexpr (field.policy == ReadPolicy::identity)
        return state.fail_document();
    if constexpr (field.policy == ReadPolicy::lenient || field.policy == ReadPolicy::lenientEach) {
        if (state.document_failed())
            return false;
        member = std::move(T{}.*field.member);
        state.forgive(depth + 1, "the default stands in for it");
        value.abandon();
        state.leave_to(depth);
        return true;
    }
    return false;
}

/// Files are written with sorted keys, so the next key in that order is tried before all are searched.
template <class T, class Key>
std::size_t find_field(Key& key, std::size_t& next_sorted)
{
    constexpr auto& list = fields<T>;
    for (; next_sorted < list.size; ++next_sorted) {
        const std::size_t place = list.sorted[next_sorted];
        if (key.is(list.keys[place])) {
            ++next_sorted;
            return place;
        }
        if (key.is_before(list.keys[place]))
            break;
    }
    const std::size_t place = list.index_of(key.text());
    return place;
}

template <class Value, class T, std::size_t I>
bool require_field(Value& value, std::uint64_t met)
{
    constexpr auto& field = field_at<T, I>;
    if constexpr (field.policy == ReadPolicy::required || field.policy == ReadPolicy::identity) {
        if (!(met >> I & 1)) {
            value.state().enter(field.key);
            return value.state().fail(
                value.place(), "Missing", field.policy == ReadPolicy::identity ? Failing::document : Failing::value);
        }
    }
    return true;
}

template <Record T>
consteval bool has_identity()
{
    return std::apply(
        [](const auto&... field) { return ((field.policy == ReadPolicy::identity) || ...); }, fields<T>.all);
}

template <class Value, Record T>
bool read_record(Value& value, T& out)
{
    if (value.kind() != ValueKind::object) {
        wrong_kind(value, "an object");
        return has_identity<T>() ? value.state().fail_document() : false;
    }
    constexpr std::size_t size = fields<T>.size;
    SeenKeys<T> seen;
    std::uint64_t met = 0;
    std::size_t next_sorted = 0;
    std::optional<OtherKeys> others;
    const bool walked = value.each_member([&](auto key, auto member) {
        const std::size_t place = find_field<T>(key, next_sorted);
        ReadState& state = value.state();
        if (place == size) {
            if (!others)
                others.emplace();
            const std::string_view name = key.text();
            if (!others->insert(name))
                return state.fail(key.place(), "Duplicate key: " + std::string(name), Failing::document);
            state.enter(name);
            if (!member.skip())
                return false;
            state.leave();
            return true;
        }
        if (met >> place & 1)
            return state.fail(key.place(), "Duplicate key: " + std::string(key.text()), Failing::document);
        met |= std::uint64_t(1) << place;
        return [&]<std::size_t... I>(std::index_sequence<I...>)
        {
            using Member = decltype(member);
            if constexpr (sizeof...(I) == 0)
                return true;
            else {
                static constexpr std::array<bool (*)(Member&, T&, SeenKeys<T>&), sizeof...(I)> readers{
                    &read_field<Member, T, I>...};
                return readers[place](member, out, seen);
            }
        }
        (std::make_index_sequence<size>());
    });
    if (!walked)
        return false;
    const bool complete = [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        return (require_field<Value, T, I>(value, met) && ...);
    }
    (std::make_index_sequence<size>());
    if (!complete)
        return false;
    if constexpr (requires { after_read(out, seen, value.state()); })
        after_read(out, seen, value.state());
    return true;
}

} // namespace detail

/// Reads one value into `out`, which holds its type's default before. A record may have a function
/// `after_read(T&, const SeenKeys<T>&, ReadState&)` beside it, which fills in what depends on the keys seen.
template <class Value, class T>
bool read(Value& value, T& out)
{
    if constexpr (Record<T>) {
        return detail::read_record(value, out);
    } else if constexpr (HasTextValue<T>) {
        return detail::read_text_value(value, out);
    } else if constexpr (NamedEnum<T>) {
        return detail::read_case(value, out);
    } else if constexpr (detail::is_optional<T>) {
        if (value.kind() == ValueKind::null) {
            out.reset();
            return value.skip();
        }
        return read(value, out.emplace());
    } else if constexpr (detail::is_shared<T>) {
        std::remove_cvref_t<decltype(*out)> plain{};
        if (!read(value, plain))
            return false;
        out = T(std::move(plain));
        return true;
    } else if constexpr (detail::is_vector<T>) {
        return detail::read_list(value, out, false);
    } else if constexpr (detail::is_variant<T>) {
        return detail::read_variant(value, out);
    } else if constexpr (detail::is_map<T>) {
        return detail::read_map(value, out);
    } else if constexpr (std::is_same_v<T, std::string>) {
        std::string_view text;
        if (value.kind() != ValueKind::string)
            return detail::wrong_kind(value, "a text");
        if (!value.text(text))
            return false;
        out.assign(text);
        return true;
    } else if constexpr (std::is_same_v<T, bool>) {
        return value.kind() == ValueKind::boolean ? value.boolean(out) : detail::wrong_kind(value, "a boolean");
    } else {
        static_assert(std::is_same_v<T, std::int64_t>, "no reader for this type");
        return value.kind() == ValueKind::number ? value.integer(out) : detail::wrong_kind(value, "a number");
    }
}

} // namespace quillfern
