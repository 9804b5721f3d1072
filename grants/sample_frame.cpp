#include "grants/sample_frame.h"

namespace quillfern::grants {
namespace {

constexpr Day story_today = {2026, 9, 10};
constexpr std::int64_t ms_per_hour = 3'600'000;
constexpr std::int64_t hours_per_day = 24;

} // namespace

Uuid sample_id(SampleKind kind, std::uint32_t number)
{
    // Version and variant as of a random identifier (RFC 4122, section 4.4); the rest tells a reader whose it is.
    Uuid id;
    id.bytes = {0x11, 0x4D, 0xE4, 0xFE, 0x44, 0x59, 0x40, 0x00, 0x80, 0x00, 0x00, static_cast<std::uint8_t>(kind)};
    for (std::size_t i = 0; i < 4; ++i)
        id.bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
    return id;
}

SampleFrame::SampleFrame(const Day& today, Lang lang) : shift_(days_between(story_today, today)), lang_(lang) { }

Day SampleFrame::on(std::int64_t year, std::int64_t month, std::int64_t day) const
{
    return within_files(Day{year, month, day}.plus_days(shift_));
}

Instant SampleFrame::at(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour) const
{
    return {(on(year, month, day).days_since_epoch() * hours_per_day + hour) * ms_per_hour};
}

std::string season(const Day& first)
{
    const std::int64_t next = (first.year + 1) % 100;
    return std::to_string(first.year) + "–" + (next < 10 ? "0" : "") + std::to_string(next);
}

} // namespace quillfern::grants
