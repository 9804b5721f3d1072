#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillfern {

/// Reads an exact decimal and scales it by ten to the power `scale`, rounding halves away from zero. Binary floating
/// point is never involved, so 1.005 is 101 hundredths however many digits spell it.
///
/// The grammar: an optional sign, digits with at most one point among or around them, an optional exponent ("1.50",
/// ".5", "5.", "+1", "1e3"). Nothing else is a number here: no blanks, grouping, hexadecimal or named values. Absent
/// for other texts and when the result does not fit into 64 bits. `scale` is 0 to 18.
std::optional<std::int64_t> parse_scaled_decimal(std::string_view text, int scale);

/// Reads an integral number in the same grammar, however it is spelled (5, 5.0, 50e-1). Absent for other texts, for
/// values with a fraction, and beyond 64 bits.
std::optional<std::int64_t> parse_whole_decimal(std::string_view text);

/// Whether the text fits that grammar, whatever its size.
bool is_decimal(std::string_view text);

} // namespace quillfern
