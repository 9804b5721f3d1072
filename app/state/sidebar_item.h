#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace quillfern::app {

/// The destinations of a document window, in the sidebar's order.
enum class SidebarItem { grant, board, today, pipeline, calendar, reports, grants, funders, organization, people };

struct Destination {
    SidebarItem item;
    std::string_view label;
    std::string_view icon;
    bool opens_group; ///< a rule stands above it
    bool built; ///< the window has its page
};

inline constexpr std::array<Destination, 10> destinations = {{
    {SidebarItem::grant, "Grant", "grant", false, false},
    {SidebarItem::board, "Board", "board", false, false},
    {SidebarItem::today, "Today", "today", true, true},
    {SidebarItem::pipeline, "Pipeline", "pipeline", false, true},
    {SidebarItem::calendar, "Calendar", "calendar", false, false},
    {SidebarItem::reports, "Reports", "reports", false, false},
    {SidebarItem::grants, "All Grants", "all-grants", false, true},
    {SidebarItem::funders, "Funders", "funders", false, true},
    {SidebarItem::organization, "Organization", "organization", true, false},
    {SidebarItem::people, "People", "people", false, false},
}};

constexpr const Destination& destination(SidebarItem item)
{
    return destinations[static_cast<std::size_t>(item)];
}

} // namespace quillfern::app
