#include "board/sample_board.h"

#include "board/sample_boards.h"

namespace quillfern::board {

Board sample_board(SampleBoard which, std::int64_t today, Lang lang, const Calendar& calendar)
{
    SampleStory story(which, today, lang, calendar);
    switch (which) {
    case SampleBoard::nonprofit:
        tell_nonprofit(story);
        break;
    case SampleBoard::homeowners:
        tell_homeowners(story);
        break;
    case SampleBoard::club:
        tell_club(story);
        break;
    }
    return std::move(story.board);
}

Uuid sample_motion_id(SampleBoard which, std::uint32_t number)
{
    return sample_id(which, SampleRecord::motion, number);
}

Uuid sample_grant_item_id()
{
    return sample_id(SampleBoard::nonprofit, SampleRecord::item, 909); // the ninth item of the ninth meeting
}

} // namespace quillfern::board
