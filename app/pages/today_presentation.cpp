#include "app/pages/today_presentation.h"

#include "app/pages/agenda_edit.h"
#include "app/pages/day_words.h"
#include "grants/labels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace quillfern::app {
namespace {

using grants::AgendaItem;
using grants::Bucket;
using grants::Day;
using grants::Lang;

/// By AgendaKind.
constexpr std::array<std::string_view, 7> kind_icons = {
    "deadline-letter",
    "deadline-application",
    "decision",
    "report-draft",
    "report",
    "payment",
    "milestone",
};

std::string joined(std::initializer_list<std::string_view> parts, std::string_view separator)
{
    std::string text;
    for (const std::string_view part : parts) {
        if (part.empty())
            continue;
        if (!text.empty())
            text += separator;
        text += part;
    }
    return text;
}

std::string weekday_words(const Day& day, const Day& today)
{
    std::string words(short_weekday(day));
    return day.year == today.year ? words : words + ' ' + std::to_string(day.year);
}

AgendaRow row_of(const AgendaItem& item, const std::string& currency, const Day& today)
{
    const std::string_view kind = label(item.kind, Lang::en);
    AgendaRow row;
    row.id = item.id;
    row.grantID = item.grantID;
    row.weekday = weekday_words(item.day, today);
    row.date = short_date(item.day);
    row.icon = kind_icons[static_cast<std::size_t>(item.kind)];
    row.title = item.grantTitle;
    row.line = joined({kind, item.detail, item.funderName}, " · ");
    row.amount = item.amount ? display_text(*item.amount, currency, Lang::en) : std::string();
    if (const auto action = action_of(item))
        row.action = action_title(*action);
    row.relative = relative_day(item.day, today);
    row.spoken = joined({item.grantTitle, kind, item.detail, item.funderName,
                            display_text(item.day, Lang::en, grants::DateStyle::full), row.relative, row.amount},
        ", ");
    return row;
}

} // namespace

DueCounts due_counts(const std::vector<AgendaItem>& open_items, const Day& today)
{
    const auto in = [&](Bucket wanted) {
        return static_cast<int>(std::count_if(open_items.begin(), open_items.end(),
            [&](const AgendaItem& item) { return bucket(item.day, today) == wanted; }));
    };
    return {in(Bucket::overdue), in(Bucket::thisWeek)};
}

TodayPresentation today_presentation(const grants::GrantFile& file, const Day& today)
{
    const std::vector<AgendaItem> items = open_agenda(file);
    const DueCounts counts = due_counts(items, today);
    TodayPresentation page;
    page.date = display_text(today, Lang::en, grants::DateStyle::full);
    if (counts.overdue > 0)
        page.overdue = std::to_string(counts.overdue) + " overdue";
    page.upcoming = (counts.thisWeek > 0 ? std::to_string(counts.thisWeek) : "nothing") + " due in the next 7 days";
    for (const AgendaItem& item : items) {
        const Bucket place = bucket(item.day, today);
        if (page.sections.empty() || page.sections.back().bucket != place)
            page.sections.push_back({place, std::string(label(place, Lang::en)), {}});
        page.sections.back().rows.push_back(row_of(item, file.org.currencyCode, today));
    }
    return page;
}

} // namespace quillfern::app
