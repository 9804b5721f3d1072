#pragma once

#include "base/uuid.h"
#include "grants/agenda.h"

#include <string>
#include <vector>

namespace quillfern::app {

/// One line of the agenda, in the words that the page shows.
struct AgendaRow {
    std::string id; ///< the agenda item's
    Uuid grantID;
    std::string weekday; ///< Sun; with the year when it is not this year's: Fri 2027
    std::string date; ///< Aug 30
    std::string icon; ///< the name of the kind's icon
    std::string title; ///< the grant's
    std::string line; ///< kind, detail and funder, as far as there are any
    std::string amount; ///< empty when the item has none
    std::string action; ///< what can be done with it at once: Mark Submitted; empty: nothing
    std::string relative;
    std::string spoken; ///< all of it in one sentence, for screen readers

    friend bool operator==(const AgendaRow&, const AgendaRow&) = default;
};

/// The rows of one bucket; never empty.
struct AgendaSection {
    grants::Bucket bucket = grants::Bucket::overdue;
    std::string title;
    std::vector<AgendaRow> rows;

    friend bool operator==(const AgendaSection&, const AgendaSection&) = default;
};

/// What the Today page shows.
struct TodayPresentation {
    std::string date; ///< Thursday, September 10, 2026
    std::string overdue; ///< "3 overdue"; empty when nothing is
    std::string upcoming; ///< "5 due in the next 7 days"
    std::vector<AgendaSection> sections;

    friend bool operator==(const TodayPresentation&, const TodayPresentation&) = default;
};

TodayPresentation today_presentation(const grants::GrantFile& file, const grants::Day& today);

/// How many open things are overdue, and how many are due today or in the seven days after it.
struct DueCounts {
    int overdue = 0;
    int thisWeek = 0;

    friend bool operator==(const DueCounts&, const DueCounts&) = default;
};

DueCounts due_counts(const std::vector<grants::AgendaItem>& open_items, const grants::Day& today);

} // namespace quillfern::app
