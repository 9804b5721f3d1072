#include "board/agenda_edits.h"

#include "board/board_values.h"
#include "board/references.h"

#include <algorithm>

namespace quillfern::board {
namespace {

using Refused = std::optional<EditRefusal>;
using Items = std::vector<AgendaItem>;

Items::iterator find_item(Items& items, const Uuid& id)
{
    return std::find_if(items.begin(), items.end(), [&](const AgendaItem& item) { return item.id == id; });
}

/// Inserts at the place within its section; `items` is in shown order.
void insert_at(Items& items, AgendaItem item, std::size_t place)
{
    const auto first = std::find_if(
        items.begin(), items.end(), [&](const AgendaItem& other) { return other.section >= item.section; });
    const auto end =
        std::find_if(first, items.end(), [&](const AgendaItem& other) { return other.section > item.section; });
    const auto step = std::min(static_cast<std::ptrdiff_t>(std::min(place, items.size())), end - first);
    items.insert(first + step, std::move(item));
}

Refused unknown_reference(const Board& board, const AgendaItem* before, const AgendaItem& item)
{
    const auto presenter = new_reference(before, item, &AgendaItem::presenterID);
    const auto motion = new_reference(before, item, &AgendaItem::carriedMotionID);
    const auto action = new_reference(before, item, &AgendaItem::carriedActionID);
    const auto meeting = new_reference(before, item, &AgendaItem::approvesMeetingID);
    if (presenter && !member_by_id(board, *presenter))
        return EditRefusal::noSuchMember;
    if (motion && !motion_by_id(board, *motion))
        return EditRefusal::noSuchMotion;
    if (action && !action_by_id(board, *action))
        return EditRefusal::noSuchAction;
    if (meeting && !meeting_by_id(board, *meeting))
        return EditRefusal::noSuchMeeting;
    return {};
}

/// Changes the agenda in shown order around one of its items.
Edited change_around(const Board& board, const Uuid& meeting_id, const Uuid& item_id,
    const std::function<Refused(Items&, Items::iterator)>& change)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        meeting.agenda = shown_agenda(meeting);
        const auto found = find_item(meeting.agenda, item_id);
        if (found == meeting.agenda.end())
            return EditRefusal::noSuchItem;
        return change(meeting.agenda, found);
    });
}

} // namespace

Edited add_item(const Board& board, const Uuid& meeting_id, const AgendaItem& item)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        if (item.id == other_business_id || item_by_id(meeting, item.id))
            return EditRefusal::idInUse;
        if (const auto refusal = unknown_reference(board, nullptr, item))
            return refusal;
        meeting.agenda = shown_agenda(meeting);
        insert_at(meeting.agenda, item, meeting.agenda.size());
        return {};
    });
}

Edited edit_item(const Board& board, const Uuid& meeting_id, const AgendaItem& item)
{
    return change_around(board, meeting_id, item.id, [&](Items& items, Items::iterator found) -> Refused {
        if (const auto refusal = unknown_reference(board, &*found, item))
            return refusal;
        if (found->section == item.section) {
            *found = item;
            return {};
        }
        items.erase(found);
        insert_at(items, item, items.size());
        return {};
    });
}

Edited remove_item(const Board& board, const Uuid& meeting_id, const Uuid& item_id)
{
    return change_meeting(board, meeting_id, [&](Meeting& meeting) -> Refused {
        const auto found = find_item(meeting.agenda, item_id);
        if (found == meeting.agenda.end())
            return EditRefusal::noSuchItem;
        meeting.agenda.erase(found);
        for (Motion& motion : meeting.motions)
            if (motion.itemID == item_id)
                motion.itemID.reset();
        return {};
    });
}

Edited place_item(
    const Board& board, const Uuid& meeting_id, const Uuid& item_id, AgendaSection section, std::size_t place)
{
    return change_around(board, meeting_id, item_id, [&](Items& items, Items::iterator found) -> Refused {
        AgendaItem moving = *found;
        moving.section = section;
        items.erase(found);
        insert_at(items, std::move(moving), place);
        return {};
    });
}

Edited move_item(const Board& board, const Uuid& meeting_id, const Uuid& item_id, Direction direction)
{
    return change_around(board, meeting_id, item_id, [&](Items& items, Items::iterator found) -> Refused {
        if (found == (direction == Direction::up ? items.begin() : items.end() - 1))
            return {};
        const auto neighbour = direction == Direction::up ? found - 1 : found + 1;
        if (neighbour->section == found->section)
            std::iter_swap(neighbour, found);
        else
            found->section = neighbour->section;
        return {};
    });
}

} // namespace quillfern::board
