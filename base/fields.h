#pragma once

#include "base/member_count.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

/// Field lists: what a record looks like in a file.
///
/// Beside each record stands one list of its keys, members and read policies, in declaration order. Reading, sorted
/// writing and the command line's JSON all come from it, and the build fails when a member is missing:
///
///     template <>
///     inline constexpr auto fields<Milestone> = field_list(
///         required("id", &Milestone::id), required("title", &Milestone::title),
///         required("rule", &Milestone::rule), required("done", &Milestone::done));
namespace quillfern {

/// What reading does when a key is missing, and when its value cannot be read.
enum class ReadPolicy {
    required, ///< missing or unreadable: the record is unreadable
    strict, ///< missing: the default; unreadable: the record is unreadable
    lenient, ///< missing or unreadable: the default (an unreadable one is told)
    lenientEach, ///< as lenient; in a list, an unreadable element is left out (and told), the rest stays
    identity, ///< missing or unreadable: the whole document is, whatever lenient keys stand around it
};

template <class Record, class Member>
struct Field {
    using RecordType = Record;
    using MemberType = Member;

    std::string_view key;
    Member Record::*member;
    ReadPolicy policy;
};

template <class Record, class Member>
consteval Field<Record, Member> required(std::string_view key, Member Record::*member)
{
    return {key, member, ReadPolicy::required};
}

template <class Record, class Member>
consteval Field<Record, Member> strict(std::string_view key, Member Record::*member)
{
    return {key, member, ReadPolicy::strict};
}

template <class Record, class Member>
consteval Field<Record, Member> lenient(std::string_view key, Member Record::*member)
{
    return {key, member, ReadPolicy::lenient};
}

template <class Record, class Member>
consteval Field<Record, Member> lenient_each(std::string_view key, Member Record::*member)
{
    return {key, member, ReadPolicy::lenientEach};
}

template <class Record, class Member>
consteval Field<Record, Member> identity(std::string_view key, Member Record::*member)
{
    return {key, member, ReadPolicy::identity};
}

template <class... F>
struct FieldList {
    static constexpr std::size_t size = sizeof...(F);

    std::tuple<F...> all; ///< in declaration order
    std::array<std::string_view, size> keys{}; ///< in declaration order
    std::array<std::size_t, size> sorted{}; ///< indices into the above, by key

    consteval explicit FieldList(F... field) : all(field...), keys{field.key...}
    {
        for (std::size_t i = 0; i < size; ++i)
            sorted[i] = i;
        std::sort(sorted.begin(), sorted.end(), [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
        for (std::size_t i = 1; i < size; ++i)
            if (keys[sorted[i - 1]] == keys[sorted[i]])
                throw "two fields have the same key";
    }

    /// The place of a key in `all`, or `size`.
    constexpr std::size_t index_of(std::string_view key) const
    {
        return static_cast<std::size_t>(std::find(keys.begin(), keys.end(), key) - keys.begin());
    }
};

template <class First, class... Rest>
consteval auto field_list(First first, Rest... rest)
{
    using Record = typename First::RecordType;
    static_assert((std::is_same_v<Record, typename Rest::RecordType> && ...), "all fields belong to one record");
    static_assert(1 + sizeof...(Rest) == member_count<Record>(), "a member is missing from this field list");
    static_assert(1 + sizeof...(Rest) <= 64, "the reader remembers the keys it has seen in 64 bits");
    return FieldList<First, Rest...>(first, rest...);
}

/// The list of a record without members.
consteval auto field_list()
{
    return FieldList<>();
}

struct NoFields { };

template <class T>
inline constexpr NoFields fields{};

template <class T>
concept Record = !std::is_same_v<std::remove_const_t<decltype(fields<T>)>, NoFields>;

} // namespace quillfern
