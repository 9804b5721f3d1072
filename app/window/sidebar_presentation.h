#pragma once

#include "app/state/sidebar_item.h"
#include "grants/grant_file.h"

#include <string>
#include <vector>

namespace quillfern::app {

/// One row of the sidebar.
struct SidebarRow {
    SidebarItem item = SidebarItem::today;
    std::string label;
    std::string icon;
    std::string second; ///< the line below the label; empty on most rows
    int badge = 0; ///< 0: none
    bool alarming = false; ///< the badge counts something overdue
    bool enabled = false;
    bool opens_group = false; ///< a rule stands above it
    std::string spoken; ///< "Today, 8, some overdue"
    std::string hint; ///< the tool tip; empty: none

    friend bool operator==(const SidebarRow&, const SidebarRow&) = default;
};

struct SidebarPresentation {
    std::string organization; ///< the name, or words that say that it has none yet
    std::vector<SidebarRow> rows;

    friend bool operator==(const SidebarPresentation&, const SidebarPresentation&) = default;
};

SidebarPresentation sidebar_presentation(const grants::GrantFile& file, const grants::Day& today);

} // namespace quillfern::app
