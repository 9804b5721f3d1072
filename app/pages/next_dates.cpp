#include "app/pages/next_dates.h"

#include "grants/labels.h"

namespace quillfern::app {

using grants::Lang;

NextDates::NextDates(const grants::GrantFile& file, const grants::Day& today)
{
    nothing_.date.text = "Nothing due";
    for (const grants::AgendaItem& item : open_agenda(file)) {
        const auto [place, is_first] = by_grant_.try_emplace(item.grantID);
        if (!is_first)
            continue;
        NextDate& next = place->second;
        next.date = {display_text(item.day, Lang::en), item.day.days_since_epoch()};
        next.what = label(item.kind, Lang::en);
        next.overdue = item.day < today;
    }
}

const NextDate& NextDates::of(const Uuid& grant) const
{
    const auto found = by_grant_.find(grant);
    return found == by_grant_.end() ? nothing_ : found->second;
}

} // namespace quillfern::app
