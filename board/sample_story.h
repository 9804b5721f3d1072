#pragma once

#include "board/sample_board.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

/// The words in which the sample boards are written down.
namespace quillfern::board {

enum class SampleRecord : std::uint8_t { board = 1, member, meeting, item, motion, action };

Uuid sample_id(SampleBoard which, SampleRecord kind, std::uint32_t number);

/// One sample board in the making. Stories are written as of September 10, 2026 and moved to the day they are shown.
class SampleStory {
public:
    SampleStory(SampleBoard which, std::int64_t today, Lang lang, const Calendar& calendar);

    Board board;

    std::int64_t day(std::int64_t month, std::int64_t day_of_month, std::int64_t year = 2026) const;
    Instant at(std::int64_t month, std::int64_t day_of_month, std::int64_t minutes, std::int64_t year = 2026) const;

    std::string text(const Text& text) const { return std::string(text(lang_)); }
    std::string text(const Text& text, std::string_view in_place_of_braces) const;
    std::string date(std::int64_t month, std::int64_t day_of_month, std::int64_t year = 2026) const; ///< July 28, 2026
    std::string year(std::int64_t month, std::int64_t day_of_month, std::int64_t year = 2026) const;

    Uuid id(SampleRecord kind, std::uint32_t number) const { return sample_id(which_, kind, number); }

    /// Gives the member to finish.
    Member& member(std::string name, Role role, std::string email);

    /// Adds an action item that was assigned at a meeting; owner 0 is nobody.
    ActionItem& action(std::string title, std::uint32_t owner, std::uint32_t meeting);

    std::string next_number(Instant made);
    const Calendar& calendar() const { return calendar_; }

    /// A step of a meeting's minutes, taken when the story tells it.
    void send_minutes(std::uint32_t meeting, Instant date);
    void approve_minutes(std::uint32_t meeting, std::uint32_t at_meeting, std::string reference);
    void reopen_minutes(std::uint32_t meeting, Instant date, std::string reason);

private:
    void change_minutes(std::uint32_t meeting, const std::function<void(Meeting&)>& change);

    SampleBoard which_;
    std::int64_t shift_;
    Lang lang_;
    const Calendar& calendar_;
    std::map<std::int64_t, std::int64_t> numbers_; ///< the last motion's of each year
};

} // namespace quillfern::board
