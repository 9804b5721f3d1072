#include "app/window/sidebar_presentation.h"

#include "app/pages/today_presentation.h"
#include "grants/agenda.h"

#include <set>

namespace quillfern::app {
namespace {

using grants::AgendaItem;
using grants::AgendaKind;
using grants::Day;

struct Badge {
    int count = 0;
    bool alarming = false;
};

Badge today_badge(const std::vector<AgendaItem>& items, const Day& today)
{
    const DueCounts counts = due_counts(items, today);
    return {counts.overdue + counts.thisWeek, counts.overdue > 0};
}

/// Reports that want attention: overdue ones, and those whose draft should have been started. A report that is both
/// counts once.
Badge reports_badge(const std::vector<AgendaItem>& items, const Day& today)
{
    std::set<Uuid> reports;
    bool overdue = false;
    for (const AgendaItem& item : items) {
        const bool late = item.kind == AgendaKind::report && item.day < today;
        const bool to_draft = item.kind == AgendaKind::reportDraft && item.day <= today;
        overdue = overdue || late;
        if ((late || to_draft) && item.itemID)
            reports.insert(*item.itemID);
    }
    return {static_cast<int>(reports.size()), overdue};
}

Badge badge_of(SidebarItem item, const std::vector<AgendaItem>& items, const Day& today)
{
    if (item == SidebarItem::today)
        return today_badge(items, today);
    return item == SidebarItem::reports ? reports_badge(items, today) : Badge{};
}

std::string second_line(SidebarItem item, const grants::GrantFile& file)
{
    if (item == SidebarItem::grant)
        return "None opened yet";
    if (item == SidebarItem::board && file.board->members.empty() && file.board->meetings.empty())
        return "Not set up yet";
    return {};
}

std::string spoken(const SidebarRow& row)
{
    std::string words = row.label;
    if (row.badge > 0)
        words += ", " + std::to_string(row.badge);
    if (row.alarming)
        words += ", some overdue";
    return words;
}

} // namespace

SidebarPresentation sidebar_presentation(const grants::GrantFile& file, const Day& today)
{
    const std::vector<AgendaItem> items = open_agenda(file);
    SidebarPresentation sidebar;
    sidebar.organization = file.org.name.empty() ? "New organization" : file.org.name;
    for (const Destination& place : destinations) {
        const Badge badge = badge_of(place.item, items, today);
        SidebarRow row;
        row.item = place.item;
        row.label = place.label;
        row.icon = place.icon;
        row.second = second_line(place.item, file);
        row.badge = badge.count;
        row.alarming = badge.alarming;
        row.enabled = place.built;
        row.opens_group = place.opens_group;
        row.spoken = spoken(row);
        row.hint = place.built ? std::string() : "Not available yet";
        sidebar.rows.push_back(std::move(row));
    }
    return sidebar;
}

} // namespace quillfern::app
