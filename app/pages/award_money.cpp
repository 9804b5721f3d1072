#include "app/pages/award_money.h"

#include "app/pages/amount_words.h"
#include "grants/agenda.h"
#include "grants/summaries.h"
#include "platform/locale_text.h"

namespace quillfern::app {

using grants::Day;

AwardMoney award_money(const grants::GrantFile& file, const Day& today, std::int64_t fiscal_year)
{
    const grants::FiscalCalendar calendar = fiscal_calendar(file.org);
    const grants::DayRange year = calendar.range(fiscal_year);
    const bool is_present = calendar.year_of(today) == fiscal_year;
    AwardMoney money;
    money.title = "Award money, " + grants::fiscal_year_label(fiscal_year);
    money.received = grants::Payments::received(file, fiscal_year);
    for (const grants::AgendaItem& item : open_agenda(file)) {
        const bool in_year = item.day >= year.first && item.day <= year.last;
        if (item.kind != grants::AgendaKind::payment || !item.amount || item.day > year.last)
            continue;
        if (item.day < today && (in_year || is_present))
            money.overdue += *item.amount;
        else if (in_year && item.day >= today)
            money.expected += *item.amount;
    }
    money.receivedText = amount_text(money.received, file);
    money.overdueText = amount_text(money.overdue, file);
    money.expectedText = amount_text(money.expected, file);
    money.expectedLabel =
        "Still expected by " + platform::format_date_fields(year.last.days_since_epoch(), "MMMMd", grants::Lang::en);
    return money;
}

} // namespace quillfern::app
