#include "grants/ics_export.h"

#include "base/civil.h"
#include "grants/ics_lines.h"
#include "grants/labels.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace quillfern::grants {

namespace {

constexpr Text client_line{"Client: ", "Cliente: "};
constexpr Text grant_line{"Grant: ", "Subvención: "};
constexpr Text funder_line{"Funder: ", "Financiador: "};
constexpr Text amount_line{"Amount: ", "Monto: "};
constexpr Text origin_line{"From Quillfern", "Desde Quillfern"};

constexpr std::string_view uid_domain = QUILLFERN_UID_DOMAIN;

constexpr std::int64_t milliseconds_per_day = 86'400'000;

bool is_chosen(const AgendaItem& item, const ICSExport::Options& options)
{
    if (item.done)
        return false;
    switch (item.kind) {
    case AgendaKind::decision:
        return options.includeDecisions;
    case AgendaKind::reportDraft:
        return options.includeDraftDates;
    case AgendaKind::payment:
        return options.includePayments;
    default:
        return true;
    }
}

void append_number(std::string& out, std::int64_t number, std::size_t digits = 1)
{
    char buffer[24];
    const char* end = std::to_chars(buffer, std::end(buffer), number).ptr;
    const auto length = static_cast<std::size_t>(end - buffer);
    out.append(digits > length ? digits - length : 0, '0');
    out.append(buffer, length);
}

void append_date(std::string& out, std::int64_t year, std::int64_t month, std::int64_t day)
{
    append_number(out, year, 4);
    append_number(out, month, 2);
    append_number(out, day, 2);
}

std::string utc_stamp(Instant instant)
{
    const std::int64_t into_day =
        (instant.milliseconds % milliseconds_per_day + milliseconds_per_day) % milliseconds_per_day;
    const CivilDate date = civil_from_days((instant.milliseconds - into_day) / milliseconds_per_day);
    const std::int64_t seconds = into_day / 1000;
    std::string stamp;
    append_date(stamp, date.year, date.month, date.day);
    stamp += 'T';
    append_number(stamp, seconds / 3600, 2);
    append_number(stamp, seconds / 60 % 60, 2);
    append_number(stamp, seconds % 60, 2);
    stamp += 'Z';
    return stamp;
}

/// The event starts at midnight, so this is 09:00 on the day `alert_days` before.
std::string alarm_trigger(std::int64_t alert_days)
{
    std::string trigger = "TRIGGER:-P";
    if (alert_days > 1) {
        append_number(trigger, alert_days - 1);
        trigger += 'D';
    }
    return trigger + "T15H";
}

void append_uid_name(std::string& out, std::string_view id)
{
    for (char character : id) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
        if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') || character == '-')
            out += character;
    }
}

class Events {
public:
    Events(std::string& out, const ICSExport::Options& options, const ICSExport::Calendar& calendar)
        : out_(out), lines_(out), calendar_(calendar), stamp_("DTSTAMP:" + utc_stamp(calendar.exportedAt)),
          trigger_(options.alertDays >= 1 ? alarm_trigger(options.alertDays) : std::string())
    {
    }

    void append(const AgendaItem& item)
    {
        write_summary(item);
        lines_.line("BEGIN:VEVENT");
        append_identity(item);
        append_span(item.day);
        append_property("SUMMARY:", summary_);
        append_description(item);
        lines_.begin("CATEGORIES:");
        append_ics_text(out_, label(item.kind, calendar_.lang));
        lines_.end();
        lines_.line("TRANSP:TRANSPARENT");
        if (!trigger_.empty())
            append_alarm();
        lines_.line("END:VEVENT");
    }

private:
    void write_summary(const AgendaItem& item)
    {
        summary_.clear();
        if (!item.client.empty()) {
            append_ics_text(summary_, item.client);
            summary_ += ": ";
        }
        append_ics_text(summary_, label(item.kind, calendar_.lang));
        summary_ += " · ";
        append_ics_text(summary_, item.grantTitle);
    }

    void append_property(std::string_view name, std::string_view value)
    {
        lines_.begin(name);
        out_ += value;
        lines_.end();
    }

    void append_identity(const AgendaItem& item)
    {
        lines_.begin("UID:");
        append_uid_name(out_, item.id);
        out_ += '@';
        out_ += uid_domain;
        lines_.end();
        lines_.line(stamp_);
    }

    /// An all-day event ends before the next day. The calendar's last day has none that its format can spell; without
    /// an end, an event that starts on a date lasts that day (RFC 5545, section 3.6.1).
    void append_span(const Day& day)
    {
        const Day next = day.plus_days(1);
        lines_.begin("DTSTART;VALUE=DATE:");
        append_date(out_, day.year, day.month, day.day);
        lines_.end();
        if (next > last_day_of_files)
            return;
        lines_.begin("DTEND;VALUE=DATE:");
        append_date(out_, next.year, next.month, next.day);
        lines_.end();
    }

    void append_description(const AgendaItem& item)
    {
        lines_.begin("DESCRIPTION:");
        if (!item.client.empty())
            append_detail(client_line, item.client);
        append_detail(grant_line, item.grantTitle);
        append_detail(funder_line, item.funderName);
        if (item.amount)
            append_detail(amount_line, display_text(*item.amount, calendar_.currencyCode, calendar_.lang));
        out_ += origin_line(calendar_.lang);
        lines_.end();
    }

    void append_detail(const Text& name, std::string_view value)
    {
        out_ += name(calendar_.lang);
        append_ics_text(out_, value);
        out_ += "\\n";
    }

    void append_alarm()
    {
        lines_.line("BEGIN:VALARM");
        lines_.line("ACTION:DISPLAY");
        append_property("DESCRIPTION:", summary_);
        lines_.line(trigger_);
        lines_.line("END:VALARM");
    }

    std::string& out_;
    ICSLines lines_;
    const ICSExport::Calendar& calendar_;
    std::string stamp_;
    std::string trigger_; ///< empty: no alarms
    std::string summary_; ///< of the item being written, escaped
};

} // namespace

std::vector<AgendaItem> ICSExport::chosen(const std::vector<AgendaItem>& items, const Options& options)
{
    std::vector<AgendaItem> chosen;
    std::copy_if(items.begin(), items.end(), std::back_inserter(chosen),
        [&](const AgendaItem& item) { return is_chosen(item, options); });
    return chosen;
}

std::string ICSExport::text(const std::vector<AgendaItem>& items, const Options& options, const Calendar& calendar)
{
    std::string out;
    ICSLines lines(out);
    for (const std::string_view line : {"BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Harrowgate//Quillfern//EN",
             "CALSCALE:GREGORIAN", "METHOD:PUBLISH"})
        lines.line(line);
    lines.begin("X-WR-CALNAME:");
    append_ics_text(out, calendar.name);
    lines.end();

    Events events(out, options, calendar);
    for (const AgendaItem& item : items)
        events.append(item);
    lines.line("END:VCALENDAR");
    return out;
}

} // namespace quillfern::grants
