#include "base/record_reader.h"
#include "board/record_fields.h"

#include <unordered_set>

namespace quillfern::board {
namespace {

template <class Record>
void fill_in(Uuid Record::*id, Record& record, const SeenKeys<Record>& seen, ReadState& state)
{
    if (!seen.has("id"))
        record.*id = state.fresh.uuid();
}

template <class Record>
void fill_in(
    std::string_view key, Instant Record::*moment, Record& record, const SeenKeys<Record>& seen, const ReadState& state)
{
    if (!seen.has(key))
        record.*moment = state.fresh.now;
}

/// The ids of one kind of record. The first bearer of an id keeps it, and references mean that one.
class UsedIds {
public:
    explicit UsedIds(ReadState& state) : state_(state) { }

    bool is_used_again(const Uuid& id) { return !used_.insert(id).second; }

    template <class Record>
    std::vector<std::size_t> places_used_again(const std::vector<Record>& records)
    {
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < records.size(); ++i)
            if (is_used_again(records[i].id))
                places.push_back(i);
        return places;
    }

    void replace(Uuid& id)
    {
        state_.note("The identifier " + id.text() + " is used twice; this record got a fresh one");
        id = state_.fresh.uuid();
        used_.insert(id);
    }

    /// `key` is the list's place under the present path.
    template <class Record>
    void replace(std::string_view key, std::vector<Record>& records, const std::vector<std::size_t>& places)
    {
        for (const std::size_t place : places) {
            state_.enter(key);
            state_.enter(place);
            replace(records[place].id);
            state_.leave();
            state_.leave();
        }
    }

    template <class Record>
    void separate(std::string_view key, std::vector<Record>& records)
    {
        replace(key, records, places_used_again(records));
    }

private:
    ReadState& state_;
    std::unordered_set<Uuid> used_;
};

/// Motions are looked up through all meetings, so their ids must differ across meetings as well.
void separate_meetings(Board& board, ReadState& state)
{
    UsedIds meetings(state);
    UsedIds motions(state);
    for (std::size_t i = 0; i < board.meetings.size(); ++i) {
        Shared<Meeting>& meeting = board.meetings[i];
        const bool id_again = meetings.is_used_again(meeting->id);
        const std::vector<std::size_t> motions_again = motions.places_used_again(meeting->motions);
        if (!id_again && motions_again.empty())
            continue;
        state.enter("meetings");
        state.enter(i);
        meeting = meeting.with([&](Meeting& changed) {
            if (id_again)
                meetings.replace(changed.id);
            motions.replace("motions", changed.motions, motions_again);
        });
        state.leave();
        state.leave();
    }
}

} // namespace

void after_read(MinutesEvent& event, const SeenKeys<MinutesEvent>& seen, ReadState& state)
{
    fill_in("date", &MinutesEvent::date, event, seen, state);
}

void after_read(AgendaItem& item, const SeenKeys<AgendaItem>& seen, ReadState& state)
{
    fill_in(&AgendaItem::id, item, seen, state);
}

void after_read(Motion& motion, const SeenKeys<Motion>& seen, ReadState& state)
{
    fill_in(&Motion::id, motion, seen, state);
    fill_in("made", &Motion::made, motion, seen, state);
}

void after_read(ActionItem& action, const SeenKeys<ActionItem>& seen, ReadState& state)
{
    fill_in(&ActionItem::id, action, seen, state);
    fill_in("created", &ActionItem::created, action, seen, state);
}

void after_read(Meeting& meeting, const SeenKeys<Meeting>& seen, ReadState& state)
{
    fill_in(&Meeting::id, meeting, seen, state);
    fill_in("date", &Meeting::date, meeting, seen, state);
    UsedIds(state).separate("agenda", meeting.agenda);
}

void after_read(Member& member, const SeenKeys<Member>& seen, ReadState&)
{
    if (!seen.has("votes"))
        member.votes = votes_by_default(member.role);
}

void after_read(Board& board, const SeenKeys<Board>& seen, ReadState& state)
{
    fill_in(&Board::id, board, seen, state);
    fill_in("created", &Board::created, board, seen, state);
    UsedIds(state).separate("members", board.members);
    separate_meetings(board, state);
    UsedIds(state).separate("actions", board.actions);
}

} // namespace quillfern::board
