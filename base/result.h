#pragma once

#include <cassert>
#include <utility>
#include <variant>

namespace quillfern {

/// The refusing half of a Result: `return fail(PackageError::notAPackage);`
template <class E>
struct Failure {
    E error;
};

template <class E>
Failure<E> fail(E error)
{
    return {std::move(error)};
}

/// What an operation that can be refused returns: a value, or the reason for refusing.
///
/// Reasons are small enumerations or structs; the words that a person reads are chosen where they are shown. Asking
/// for the half that is not there is a programming error.
///
///     Result<Attachment, AttachmentError> added = attach(...);
///     if (!added)
///         return show(added.error());
template <class T, class E>
class [[nodiscard]] Result {
public:
    using value_type = T;
    using error_type = E;

    Result(T value) : state_(std::in_place_index<0>, std::move(value)) { }
    template <class F>
    Result(Failure<F> failure) : state_(std::in_place_index<1>, std::move(failure.error))
    {
    }

    bool ok() const { return state_.index() == 0; }
    explicit operator bool() const { return ok(); }

    T& value() & { return (assert(ok()), *std::get_if<0>(&state_)); }
    const T& value() const& { return (assert(ok()), *std::get_if<0>(&state_)); }
    T&& value() && { return (assert(ok()), std::move(*std::get_if<0>(&state_))); }
    T& operator*() & { return value(); }
    const T& operator*() const& { return value(); }
    T&& operator*() && { return std::move(*this).value(); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }

    const E& error() const { return (assert(!ok()), *std::get_if<1>(&state_)); }

private:
    std::variant<T, E> state_;
};

/// The value of a Result that carries nothing but success.
struct Done {
    friend bool operator==(Done, Done) = default;
};

} // namespace quillfern
