#pragma once

#include "base/fields.h"
#include "base/instant.h"
#include "base/shared.h"
#include "base/uuid.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

/// Hashes of records over all their fields in order, from the same lists as their files: equal records hash alike, and
/// a field that is added is hashed without a further word.
///
///     std::unordered_set<grants::Payment, RecordHash> seen;
namespace quillfern {

template <class T>
std::size_t hash_of(const T& value);

namespace detail {

/// Mixes so that the order counts. (The finaliser of Sebastiano Vigna's SplitMix64.)
inline std::size_t combined(std::size_t seed, std::size_t hash)
{
    std::size_t mixed = seed + 0x9E3779B97F4A7C15u + hash;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

template <class T>
std::size_t hash_value(const std::vector<T>& list)
{
    std::size_t hash = list.size();
    for (const auto& element : list)
        hash = combined(hash, hash_of(element));
    return hash;
}
template <class T>
std::size_t hash_value(const std::map<std::string, T>& map)
{
    std::size_t hash = map.size();
    for (const auto& [key, value] : map)
        hash = combined(combined(hash, hash_of(key)), hash_of(value));
    return hash;
}
template <class T>
std::size_t hash_value(const std::optional<T>& value)
{
    return value ? combined(1, hash_of(*value)) : 0;
}
template <class... Case>
std::size_t hash_value(const std::variant<Case...>& value)
{
    return combined(value.index(), std::visit([](const auto& payload) { return hash_of(payload); }, value));
}
template <class T>
std::size_t hash_value(const Shared<T>& value)
{
    return hash_of(*value);
}
inline std::size_t hash_value(Instant instant)
{
    return std::hash<std::int64_t>()(instant.milliseconds);
}

template <class T>
concept HasStdHash = requires(const T& value)
{
    std::hash<T>()(value);
};

} // namespace detail

template <class T>
std::size_t hash_of(const T& value)
{
    if constexpr (Record<T>) {
        std::size_t hash = fields<T>.size;
        std::apply([&](const auto&... field) { ((hash = detail::combined(hash, hash_of(value.*field.member))), ...); },
            fields<T>.all);
        return hash;
    } else if constexpr (requires { detail::hash_value(value); }) {
        return detail::hash_value(value);
    } else {
        static_assert(detail::HasStdHash<T>, "no hash for this type");
        return std::hash<T>()(value);
    }
}

/// For unordered containers of records.
struct RecordHash {
    template <Record T>
    std::size_t operator()(const T& record) const
    {
        return hash_of(record);
    }
};

} // namespace quillfern
