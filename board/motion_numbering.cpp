#include "board/motion_numbering.h"

#include <charconv>
#include <limits>

namespace quillfern::board::MotionNumbering {
namespace {

std::string head(std::string_view prefix, std::int64_t year)
{
    return std::string(prefix).append(std::to_string(year)).append("-");
}

/// An optional sign and digits, the whole text.
std::optional<std::int64_t> whole_number(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

} // namespace

std::string format(std::string_view prefix, std::int64_t year, std::int64_t sequence)
{
    constexpr std::size_t width = 3; // a sign counts, as in printf
    std::string digits = std::to_string(sequence);
    if (digits.size() < width)
        digits.insert(sequence < 0 ? 1 : 0, width - digits.size(), '0');
    return head(prefix, year).append(digits);
}

std::optional<std::int64_t> sequence_of(std::string_view number, std::int64_t year, std::string_view prefix)
{
    const std::string expected = head(prefix, year);
    if (!number.starts_with(expected))
        return std::nullopt;
    const auto sequence = whole_number(number.substr(expected.size()));
    return sequence == std::numeric_limits<std::int64_t>::max() ? std::nullopt : sequence;
}

std::string next_number(const Board& board, std::int64_t year)
{
    std::optional<std::int64_t> greatest;
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            if (const auto sequence = sequence_of(motion.number, year, board.motionPrefix))
                greatest = std::max(greatest.value_or(*sequence), *sequence);
    return format(board.motionPrefix, year, greatest.value_or(0) + 1);
}

} // namespace quillfern::board::MotionNumbering
