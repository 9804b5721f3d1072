#include "board/planning.h"

#include "board/board_values.h"
#include "board/usual_agenda.h"
#include "platform/locale_text.h"

#include <algorithm>

namespace quillfern::board {
namespace {

constexpr Text approve_minutes_of{"Approve the minutes of ", "Aprobar el acta del "};
constexpr std::int64_t minutes_for_minutes = 5;
constexpr std::int64_t minutes_for_a_motion = 10;
constexpr std::int64_t minutes_for_an_action = 5;

/// One read of the board that collects what a meeting inherits and does not hold yet.
class Inheritance {
public:
    Inheritance(const Board& board, const Meeting& heir, const NewId& new_id)
        : board_(board), heir_(heir), new_id_(new_id)
    {
    }

    void add_minutes(const Calendar& calendar, Lang lang)
    {
        for (const Meeting* earlier : earlier_meetings()) {
            if (is_locked(*earlier) || holds(&AgendaItem::approvesMeetingID, earlier->id))
                continue;
            const std::string day =
                platform::format_date(calendar.day_number(earlier->date), platform::DateStyle::long_, lang);
            AgendaItem& item = add(AgendaSection::minutes, std::string(approve_minutes_of(lang)) + day);
            item.minutes = minutes_for_minutes;
            item.approvesMeetingID = earlier->id;
            item.presenterID = earlier->recorderID;
        }
    }

    void add_motions()
    {
        for (const Meeting* earlier : earlier_meetings())
            for (const Motion& motion : earlier->motions) {
                const bool put_off = motion.status == MotionStatus::postponed || motion.status == MotionStatus::tabled;
                if (!put_off || resumption_of(board_, motion.id) || holds(&AgendaItem::carriedMotionID, motion.id))
                    continue;
                AgendaItem& item = add(AgendaSection::oldBusiness, motion.text);
                item.minutes = minutes_for_a_motion;
                item.carriedMotionID = motion.id;
                item.presenterID = motion.moverID;
            }
    }

    void add_actions()
    {
        for (const ActionItem& action : board_.actions) {
            if (!is_open(action.status) || !is_earlier(action) || holds(&AgendaItem::carriedActionID, action.id))
                continue;
            AgendaItem& item = add(AgendaSection::oldBusiness, action.title);
            item.minutes = minutes_for_an_action;
            item.carriedActionID = action.id;
            item.presenterID = action.ownerID;
        }
    }

    std::vector<AgendaItem> take() { return std::move(items_); }

private:
    /// By date; of equal dates in stored order.
    std::vector<const Meeting*> earlier_meetings() const
    {
        std::vector<const Meeting*> earlier;
        for (const Shared<Meeting>& meeting : board_.meetings)
            if (meeting->id != heir_.id && meeting->date < heir_.date)
                earlier.push_back(&*meeting);
        std::stable_sort(
            earlier.begin(), earlier.end(), [](const Meeting* a, const Meeting* b) { return a->date < b->date; });
        return earlier;
    }

    bool is_earlier(const ActionItem& action) const
    {
        const Meeting* origin = action.meetingID ? meeting_by_id(board_, *action.meetingID) : nullptr;
        return (origin ? origin->date : action.created) < heir_.date;
    }

    bool holds(std::optional<Uuid> AgendaItem::*reference, const Uuid& id) const
    {
        return std::any_of(
            heir_.agenda.begin(), heir_.agenda.end(), [&](const AgendaItem& item) { return item.*reference == id; });
    }

    AgendaItem& add(AgendaSection section, std::string title)
    {
        AgendaItem& item = items_.emplace_back();
        item.id = new_id_();
        item.section = section;
        item.title = std::move(title);
        return item;
    }

    const Board& board_;
    const Meeting& heir_;
    const NewId& new_id_;
    std::vector<AgendaItem> items_;
};

void inherit(const Board& board, Meeting& heir, const NewId& new_id, const Calendar& calendar, Lang lang)
{
    if (heir.kind == MeetingKind::special)
        return;
    Inheritance inheritance(board, heir, new_id);
    inheritance.add_minutes(calendar, lang);
    inheritance.add_motions();
    inheritance.add_actions();
    for (AgendaItem& item : inheritance.take())
        heir.agenda.push_back(std::move(item));
    heir.agenda = shown_agenda(heir);
}

std::optional<Uuid> id_of(const std::optional<Member>& member)
{
    return member ? std::optional(member->id) : std::nullopt;
}

} // namespace

Instant usual_start(const Board& board, std::int64_t day, const Calendar& calendar)
{
    return calendar.at(day, board.defaultStartMinutes);
}

MeetingPlanned plan_meeting(
    const Board& board, const MeetingPlan& plan, const NewId& new_id, const Calendar& calendar, Lang lang)
{
    Meeting meeting;
    meeting.id = new_id();
    meeting.kind = plan.kind;
    meeting.title = plan.title;
    meeting.date = plan.date;
    meeting.lengthMinutes = plan.lengthMinutes.value_or(board.defaultLengthMinutes);
    meeting.location = plan.location.value_or(board.defaultLocation);
    meeting.purpose = plan.purpose;
    meeting.presidingID = id_of(member_holding(board, Role::president));
    meeting.recorderID = id_of(member_holding(board, Role::secretary));
    meeting.agenda = usual_agenda(plan.kind, plan.purpose, new_id, lang);
    inherit(board, meeting, new_id, calendar, lang);
    const Uuid id = meeting.id;
    Board after = board;
    after.meetings.emplace_back(std::move(meeting));
    return {std::move(after), id};
}

Edited carry_forward(
    const Board& board, const Uuid& meeting_id, const NewId& new_id, const Calendar& calendar, Lang lang)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> std::optional<EditRefusal> {
        inherit(board, meeting, new_id, calendar, lang);
        return {};
    });
}

} // namespace quillfern::board
