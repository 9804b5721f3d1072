#include "app/window/fiscal_year_choice.h"

#include "grants/summaries.h"

#include <algorithm>
#include <functional>

namespace quillfern::app {

FiscalYearChoice fiscal_year_choice(const grants::GrantFile& file, const grants::Day& today, std::int64_t shown)
{
    FiscalYearChoice choice;
    choice.years = grants::Pipeline::fiscalYears(file, today);
    const auto place = std::lower_bound(choice.years.begin(), choice.years.end(), shown, std::greater<>());
    choice.shown = static_cast<std::size_t>(place - choice.years.begin());
    if (place == choice.years.end() || *place != shown)
        choice.years.insert(place, shown);
    for (const std::int64_t year : choice.years)
        choice.labels.push_back(grants::fiscal_year_label(year));
    return choice;
}

} // namespace quillfern::app
