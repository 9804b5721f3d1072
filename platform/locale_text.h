#pragma once

#include "base/text.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Dates, amounts and sort keys in a document's language: "en_US" for Lang::en, "es_US" for Lang::es, as ICU's locale
/// data have them.
///
/// Formatters and collators are made once a thread, since making one costs thirty times its use.
namespace quillfern::platform {

/// As the operating systems name them: 3/7/25 · Mar 7, 2025 · March 7, 2025 · Friday, March 7, 2025.
enum class DateStyle { short_, medium, long_, full };

/// Dates are whole days since 1970-01-01 in the Gregorian calendar, of which no time zone is a part. The texts hold
/// ordinary spaces only, so that they can be searched and compared.
std::string format_date(std::int64_t days_since_epoch, DateStyle style, Lang lang);

/// The fields that `skeleton` names, in the language's own order and with its own words: "MMMd" is Mar 7 or 7 mar,
/// "EEEEMMMMd" is Friday, March 7. (Unicode TS 35, availableFormats.)
std::string format_date_fields(std::int64_t days_since_epoch, std::string_view skeleton, Lang lang);

/// 6:30 PM · 6:30 p. m.; `hour` is 0 to 23.
std::string format_time(int hour, int minute, Lang lang);

/// Hundredths as currency, with `fraction_digits` of 0 to 2; halves are rounded away from zero. A space within the
/// amount is a no-break space, so that it never falls apart at a line's end. A code that is no ISO 4217 code stands as
/// it is before the number.
std::string format_currency(std::int64_t cents, std::string_view currency_code, int fraction_digits, Lang lang);

/// Keys that compare as bytes the way names sort in any language (the root collation): a capital or small letter makes
/// no difference, an accent does.
std::string name_sort_key(std::string_view text);

/// As above, case included, but digits in the text compare as numbers: "Seat 9" before "Seat 10".
std::string numbered_name_sort_key(std::string_view text);

} // namespace quillfern::platform
