#include "app/pages/agenda_edit.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillfern::app {
namespace {

/// By AgendaKind.
constexpr std::array<std::string_view, 7> toasts = {
    "Letter of inquiry marked submitted.",
    "Application marked submitted.",
    "", // a decision is recorded elsewhere
    "Report draft started.",
    "Report marked submitted.",
    "Payment marked received.",
    "Milestone marked done.",
};

} // namespace

std::string_view action_title(grants::AgendaAction action)
{
    switch (action) {
    case grants::AgendaAction::markSubmitted:
        return "Mark Submitted";
    case grants::AgendaAction::startDraft:
        return "Start Draft";
    case grants::AgendaAction::markReceived:
        return "Mark Received";
    case grants::AgendaAction::markDone:
        break;
    }
    return "Mark Done";
}

std::optional<AgendaEdit> agenda_edit(
    const grants::GrantFile& file, std::string_view item_id, const grants::Day& today, Instant now)
{
    const std::vector<grants::AgendaItem> items = open_agenda(file);
    const auto item =
        std::find_if(items.begin(), items.end(), [&](const grants::AgendaItem& each) { return each.id == item_id; });
    if (item == items.end())
        return std::nullopt;
    const auto action = action_of(*item);
    if (!action)
        return std::nullopt;
    return AgendaEdit{perform(file, *item, today, now), std::string(action_title(*action)),
        std::string(toasts[static_cast<std::size_t>(item->kind)])};
}

} // namespace quillfern::app
