#include "board/sample_story.h"

#include "board/board_values.h"
#include "board/motion_numbering.h"
#include "platform/locale_text.h"

#include <algorithm>

namespace quillfern::board {
namespace {

constexpr std::int64_t story_today = days_from_civil(2026, 9, 10);

/// Files hold the years 1 to 9999; a day of room at each end is for time zones.
constexpr std::int64_t first_day = days_from_civil(1, 1, 2);
constexpr std::int64_t last_day = days_from_civil(9999, 12, 30);

} // namespace

Uuid sample_id(SampleBoard which, SampleRecord kind, std::uint32_t number)
{
    // Version and variant as of a random identifier (RFC 4122, section 4.4); the rest tells a reader whose it is.
    Uuid id;
    id.bytes = {0xB0, 0xA2, 0xD5, 0xA3, 0x91, 0x7E, 0x40, 0x00, 0x80, 0x00, static_cast<std::uint8_t>(which),
        static_cast<std::uint8_t>(kind)};
    for (std::size_t i = 0; i < 4; ++i)
        id.bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
    return id;
}

SampleStory::SampleStory(SampleBoard which, std::int64_t today, Lang lang, const Calendar& calendar)
    : which_(which), shift_(today - story_today), lang_(lang), calendar_(calendar)
{
    board.id = id(SampleRecord::board, 1);
    board.created = at(1, 5, 540);
    board.sample = true;
}

std::int64_t SampleStory::day(std::int64_t month, std::int64_t day_of_month, std::int64_t year) const
{
    return std::clamp(days_from_civil(year, month, day_of_month) + shift_, first_day, last_day);
}

Instant SampleStory::at(std::int64_t month, std::int64_t day_of_month, std::int64_t minutes, std::int64_t year) const
{
    return calendar_.at(day(month, day_of_month, year), minutes);
}

std::string SampleStory::text(const Text& text, std::string_view in_place_of_braces) const
{
    std::string filled(text(lang_));
    filled.replace(filled.find("{}"), 2, in_place_of_braces);
    return filled;
}

std::string SampleStory::date(std::int64_t month, std::int64_t day_of_month, std::int64_t year) const
{
    return platform::format_date(day(month, day_of_month, year), platform::DateStyle::long_, lang_);
}

std::string SampleStory::year(std::int64_t month, std::int64_t day_of_month, std::int64_t year) const
{
    return std::to_string(civil_from_days(day(month, day_of_month, year)).year);
}

Member& SampleStory::member(std::string name, Role role, std::string email)
{
    const auto number = static_cast<std::uint32_t>(board.members.size() + 1);
    board.members.push_back(Member::with_role(id(SampleRecord::member, number), std::move(name), role));
    board.members.back().email = std::move(email);
    return board.members.back();
}

ActionItem& SampleStory::action(std::string title, std::uint32_t owner, std::uint32_t meeting)
{
    ActionItem& action = board.actions.emplace_back();
    action.id = id(SampleRecord::action, static_cast<std::uint32_t>(board.actions.size()));
    action.title = std::move(title);
    if (owner)
        action.ownerID = id(SampleRecord::member, owner);
    action.meetingID = id(SampleRecord::meeting, meeting);
    action.created = meeting_by_id(board, *action.meetingID)->date;
    return action;
}

std::string SampleStory::next_number(Instant made)
{
    const std::int64_t year = calendar_.date_of(made).year;
    return MotionNumbering::format(board.motionPrefix, year, ++numbers_[year]);
}

void SampleStory::change_minutes(std::uint32_t meeting, const std::function<void(Meeting&)>& change)
{
    Shared<Meeting>& one = board.meetings.at(meeting - 1);
    one = one.with(change);
}

void SampleStory::send_minutes(std::uint32_t meeting, Instant date)
{
    change_minutes(meeting, [&](Meeting& one) { (void)circulate(one.minutes, date); });
}

void SampleStory::approve_minutes(std::uint32_t meeting, std::uint32_t at_meeting, std::string reference)
{
    const Meeting& approving = board.meetings.at(at_meeting - 1);
    const MinutesApproval approval{
        approving.calledToOrder.value_or(approving.date), std::move(reference), approving.id};
    change_minutes(meeting, [&](Meeting& one) { (void)approve(one.minutes, approval, one.date, calendar_); });
}

void SampleStory::reopen_minutes(std::uint32_t meeting, Instant date, std::string reason)
{
    change_minutes(meeting, [&](Meeting& one) { (void)reopen(one.minutes, date, reason); });
}

} // namespace quillfern::board
