#pragma once

#include "base/text.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillfern::grants {

using quillfern::Lang;

/// A signed amount in whole cents. The currency is the organization's and is not kept with the amount.
///
/// An overflow is a programming error and stops the program: a wrong sum must never be shown.
struct Money {
    std::int64_t cents = 0;

    static Money from_units(std::int64_t units);

    /// Reads "1250.00", "-0.05", ".5" or "1e3": an exact decimal with a point, no grouping, rounded half away from zero
    /// to cents. Blanks around it are ignored. Absent for anything else and for amounts beyond 64 bits of cents.
    static std::optional<Money> parse(std::string_view text);

    /// `percent` of this amount, rounded half away from zero.
    Money percentage(std::int64_t percent) const;

    std::string text() const; ///< as in files: -12.50

    Money& operator+=(Money other);
    Money& operator-=(Money other);
    friend Money operator+(Money a, Money b) { return a += b; }
    friend Money operator-(Money a, Money b) { return a -= b; }

    friend bool operator==(Money, Money) = default;
    friend auto operator<=>(Money, Money) = default;
};

/// The amount as currency ($1,250 or $1,250.50). `cents` chooses whether cents are shown; absent, they are shown when
/// there are any. `currency_code` is ISO 4217.
std::string display_text(
    Money amount, std::string_view currency_code, Lang lang, std::optional<bool> cents = std::nullopt);

} // namespace quillfern::grants

template <>
struct std::hash<quillfern::grants::Money> {
    std::size_t operator()(quillfern::grants::Money money) const noexcept
    {
        return std::hash<std::int64_t>()(money.cents);
    }
};
