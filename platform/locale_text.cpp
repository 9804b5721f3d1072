#include "platform/locale_text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <unicode/calendar.h>
#include <unicode/dtptngen.h>
#include <unicode/gregocal.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

namespace quillfern::platform {
namespace {

constexpr double ms_per_day = 86'400'000;
constexpr double ms_per_minute = 60'000;

/// Locale data are part of ICU's own library: a failure here is a broken installation, not something to go on from.
void require(UErrorCode status, const char* what)
{
    if (U_SUCCESS(status))
        return;
    std::fprintf(stderr, "ICU cannot make %s: %s\n", what, u_errorName(status));
    std::abort();
}

const icu::Locale& locale_of(Lang lang)
{
    static const icu::Locale english("en_US");
    static const icu::Locale spanish("es_US");
    return lang == Lang::en ? english : spanish;
}

icu::UnicodeString from_utf8(std::string_view text)
{
    return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
}

/// Replaces ICU's no-break space and narrow no-break space.
std::string with_spaces(icu::UnicodeString text, char16_t no_break, char16_t narrow)
{
    for (int32_t i = 0; i < text.length(); ++i) {
        if (text[i] == u'\u00A0')
            text.setCharAt(i, no_break);
        else if (text[i] == u'\u202F')
            text.setCharAt(i, narrow);
    }
    std::string utf8;
    text.toUTF8String(utf8);
    return utf8;
}

/// Gregorian from its first day on, as all day arithmetic is here, and in UTC.
icu::Calendar* new_calendar(Lang lang)
{
    UErrorCode status = U_ZERO_ERROR;
    auto calendar = std::make_unique<icu::GregorianCalendar>(icu::TimeZone::getGMT()->clone(), locale_of(lang), status);
    require(status, "a calendar");
    calendar->setGregorianChange(U_DATE_MIN, status);
    require(status, "a calendar without a Julian past");
    return calendar.release();
}

using DateFormat = std::unique_ptr<icu::DateFormat>;

DateFormat new_styled_format(DateStyle style, Lang lang)
{
    constexpr icu::DateFormat::EStyle styles[] = {
        icu::DateFormat::kShort, icu::DateFormat::kMedium, icu::DateFormat::kLong, icu::DateFormat::kFull};
    DateFormat format(icu::DateFormat::createDateInstance(styles[static_cast<std::size_t>(style)], locale_of(lang)));
    require(format ? U_ZERO_ERROR : U_MISSING_RESOURCE_ERROR, "a date format");
    format->adoptCalendar(new_calendar(lang));
    return format;
}

DateFormat new_fields_format(std::string_view skeleton, Lang lang)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(locale_of(lang), status));
    require(status, "date patterns");
    const icu::UnicodeString pattern = patterns->getBestPattern(from_utf8(skeleton), status);
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale_of(lang), status);
    require(status, "a date format");
    format->adoptCalendar(new_calendar(lang));
    return format;
}

std::string formatted(const icu::DateFormat& format, double ms_since_epoch)
{
    icu::UnicodeString text;
    return with_spaces(format.format(ms_since_epoch, text), u' ', u' ');
}

const icu::DateFormat& fields_format(std::string_view skeleton, Lang lang)
{
    thread_local std::map<std::pair<Lang, std::string>, DateFormat, std::less<>> formats;
    DateFormat& format = formats[{lang, std::string(skeleton)}];
    if (!format)
        format = new_fields_format(skeleton, lang);
    return *format;
}

using CurrencyFormat = icu::number::LocalizedNumberFormatter;

bool is_currency_code(std::string_view code)
{
    return code.size() == 3 && std::all_of(code.begin(), code.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

/// `code` is three capital letters, or empty for a plain number.
CurrencyFormat new_currency_format(std::string_view code, int fraction_digits, Lang lang)
{
    CurrencyFormat format = icu::number::NumberFormatter::withLocale(locale_of(lang))
                                .precision(icu::number::Precision::fixedFraction(fraction_digits))
                                .roundingMode(UNUM_ROUND_HALFUP);
    if (code.empty())
        return format;
    UErrorCode status = U_ZERO_ERROR;
    const icu::CurrencyUnit unit(from_utf8(code).getTerminatedBuffer(), status);
    require(status, "a currency");
    // The currency would bring its own number of digits (yen have none); ours were asked for.
    return std::move(format).unit(unit).precision(icu::number::Precision::fixedFraction(fraction_digits));
}

const CurrencyFormat& currency_format(std::string_view code, int fraction_digits, Lang lang)
{
    struct Key {
        Lang lang;
        int fraction_digits;
        std::string code;
        auto operator<=>(const Key&) const = default;
    };
    thread_local std::map<Key, CurrencyFormat> formats;
    const auto [place, is_new] = formats.try_emplace(Key{lang, fraction_digits, std::string(code)});
    if (is_new)
        place->second = new_currency_format(code, fraction_digits, lang);
    return place->second;
}

/// The exact decimal text, which a double could not hold.
std::string decimal_text(std::int64_t cents)
{
    const auto magnitude = cents < 0 ? 0 - static_cast<std::uint64_t>(cents) : static_cast<std::uint64_t>(cents);
    char text[32];
    const int length = std::snprintf(text, sizeof text, "%s%llu.%02llu", cents < 0 ? "-" : "",
        static_cast<unsigned long long>(magnitude / 100), static_cast<unsigned long long>(magnitude % 100));
    return {text, static_cast<std::size_t>(length)};
}

} // namespace

std::string format_date(std::int64_t days_since_epoch, DateStyle style, Lang lang)
{
    thread_local DateFormat formats[2][4];
    DateFormat& format = formats[static_cast<std::size_t>(lang)][static_cast<std::size_t>(style)];
    if (!format)
        format = new_styled_format(style, lang);
    return formatted(*format, static_cast<double>(days_since_epoch) * ms_per_day);
}

std::string format_date_fields(std::int64_t days_since_epoch, std::string_view skeleton, Lang lang)
{
    return formatted(fields_format(skeleton, lang), static_cast<double>(days_since_epoch) * ms_per_day);
}

std::string format_time(int hour, int minute, Lang lang)
{
    return formatted(fields_format("jm", lang), (hour * 60 + minute) * ms_per_minute);
}

std::string format_currency(std::int64_t cents, std::string_view currency_code, int fraction_digits, Lang lang)
{
    const bool known_form = is_currency_code(currency_code);
    UErrorCode status = U_ZERO_ERROR;
    const auto amount = currency_format(known_form ? currency_code : "", fraction_digits, lang)
                            .formatDecimal(decimal_text(cents), status);
    const std::string text = with_spaces(amount.toString(status), u'\u00A0', u'\u00A0');
    require(status, "an amount");
    return known_form || currency_code.empty() ? text : std::string(currency_code) + "\u00A0" + text;
}

} // namespace quillfern::platform
