#pragma once

#include <cstddef>
#include <utility>

namespace quillfern {
namespace detail {

/// Stands for any member in a braced initialiser; never evaluated.
struct AnyMember {
    template <class T>
    operator T() const;
};

template <class Record, std::size_t... I>
consteval bool takes_initialisers(std::index_sequence<I...>)
{
    return requires
    {
        Record{(static_cast<void>(I), AnyMember{})...};
    };
}

} // namespace detail

/// How many members an aggregate of at most 40 has: the largest number of initialisers that it takes.
template <class Record>
consteval std::size_t member_count()
{
    constexpr std::size_t most = 40;
    std::size_t count = 0;
    [&]<std::size_t... N>(std::index_sequence<N...>)
    {
        ((detail::takes_initialisers<Record>(std::make_index_sequence<N>()) ? void(count = N) : void()), ...);
    }
    (std::make_index_sequence<most + 1>());
    return count;
}

} // namespace quillfern
