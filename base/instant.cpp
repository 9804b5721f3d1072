#include "base/instant.h"

#include "base/civil.h"

#include <algorithm>

namespace quillfern {
namespace {

constexpr std::int64_t ms_per_second = 1000;
constexpr std::int64_t ms_per_minute = 60 * ms_per_second;
constexpr std::int64_t ms_per_day = 24 * 60 * ms_per_minute;
constexpr std::int64_t first_ms = days_from_civil(0, 1, 1) * ms_per_day;
constexpr std::int64_t last_ms = days_from_civil(10000, 1, 1) * ms_per_day - 1;

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

/// Takes text apart from the left; once something does not fit, `ok` stays false.
struct Scanner {
    std::string_view rest;
    bool ok = true;

    std::int64_t digits(std::size_t count)
    {
        std::int64_t value = 0;
        ok = ok && rest.size() >= count && std::all_of(rest.begin(), rest.begin() + static_cast<long>(count), is_digit);
        if (!ok)
            return 0;
        for (const char c : rest.substr(0, count))
            value = value * 10 + (c - '0');
        rest.remove_prefix(count);
        return value;
    }

    bool accept(char c)
    {
        if (!ok || rest.empty() || rest.front() != c)
            return false;
        rest.remove_prefix(1);
        return true;
    }

    void expect(char c) { ok = accept(c); }

    /// The digits after the point as milliseconds, 0 to 1000: half a millisecond and more rounds up.
    std::int64_t fraction()
    {
        const auto count = std::min(rest.find_first_not_of("0123456789"), rest.size());
        ok = ok && count > 0;
        std::int64_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value = value * 10 + (i < count ? rest[i] - '0' : 0);
        rest.remove_prefix(count);
        return (value + 5) / 10;
    }

    std::int64_t zone_offset_ms()
    {
        if (accept('Z'))
            return 0;
        const bool west = accept('-');
        if (!west)
            expect('+');
        const std::int64_t hours = digits(2);
        accept(':');
        const std::int64_t minutes = digits(2);
        ok = ok && hours <= 23 && minutes <= 59;
        const std::int64_t offset = (hours * 60 + minutes) * ms_per_minute;
        return west ? -offset : offset;
    }
};

void put(char* out, std::int64_t value, int width)
{
    for (int i = width - 1; i >= 0; --i, value /= 10)
        out[i] = static_cast<char>('0' + value % 10);
}

} // namespace

std::optional<Instant> Instant::parse(std::string_view text)
{
    Scanner scan{text};
    const std::int64_t year = scan.digits(4);
    scan.expect('-');
    const std::int64_t month = scan.digits(2);
    scan.expect('-');
    const std::int64_t day = scan.digits(2);
    scan.expect('T');
    const std::int64_t hour = scan.digits(2);
    scan.expect(':');
    const std::int64_t minute = scan.digits(2);
    scan.expect(':');
    const std::int64_t second = scan.digits(2);
    const std::int64_t fraction = scan.accept('.') ? scan.fraction() : 0;
    const std::int64_t offset = scan.zone_offset_ms();
    if (!scan.ok || !scan.rest.empty() || month < 1 || month > 12 || day < 1 || day > days_in_month(year, month)
        || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    const Instant instant{days_from_civil(year, month, day) * ms_per_day + (hour * 60 + minute) * ms_per_minute
        + second * ms_per_second + fraction - offset};
    if (instant.milliseconds < first_ms || instant.milliseconds > last_ms)
        return std::nullopt;
    return instant;
}

std::string Instant::text() const
{
    const std::int64_t ms = std::clamp(milliseconds, first_ms, last_ms);
    const std::int64_t days = (ms - (ms < 0 ? ms_per_day - 1 : 0)) / ms_per_day;
    const std::int64_t of_day = ms - days * ms_per_day;
    const CivilDate date = civil_from_days(days);
    std::string text = "0000-00-00T00:00:00.000Z";
    put(&text[0], date.year, 4);
    put(&text[5], date.month, 2);
    put(&text[8], date.day, 2);
    put(&text[11], of_day / (60 * ms_per_minute), 2);
    put(&text[14], of_day / ms_per_minute % 60, 2);
    put(&text[17], of_day / ms_per_second % 60, 2);
    put(&text[20], of_day % ms_per_second, 3);
    return text;
}

} // namespace quillfern
