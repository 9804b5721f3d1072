#include "bench/made_file.h"
#include "bench/paired.h"
#include "grants/agenda.h"
#include "grants/ics_export.h"
#include "grants/labels.h"

#include <libical/ical.h>

#include <string>
#include <vector>

/// The calendar file of all items against libical building and printing the same events.
namespace quillfern::bench {
namespace {

using grants::AgendaItem;
using grants::ICSExport;

constexpr ICSExport::Options everything{
    .includeDraftDates = true, .includePayments = true, .includeDecisions = true, .alertDays = 3};
constexpr Instant exported_at{1'750'000'000'000};

icaltimetype ical_date(const grants::Day& day)
{
    icaltimetype time = icaltime_null_date();
    time.year = static_cast<int>(day.year);
    time.month = static_cast<int>(day.month);
    time.day = static_cast<int>(day.day);
    return time;
}

std::string description_of(const AgendaItem& item)
{
    std::string text = "Grant: " + item.grantTitle + "\nFunder: " + item.funderName + "\n";
    if (item.amount)
        text += "Amount: " + display_text(*item.amount, "USD", Lang::en) + "\n";
    return text + "From Quillfern";
}

icalcomponent* alarm_with(const std::string& summary)
{
    return icalcomponent_vanew(ICAL_VALARM_COMPONENT, icalproperty_new_action(ICAL_ACTION_DISPLAY),
        icalproperty_new_description(summary.c_str()),
        icalproperty_new_trigger(icaltriggertype_from_string("-P2DT15H")), nullptr);
}

icalcomponent* event_of(const AgendaItem& item)
{
    const std::string kind(label(item.kind, Lang::en));
    const std::string summary = kind + " · " + item.grantTitle;
    return icalcomponent_vanew(ICAL_VEVENT_COMPONENT, icalproperty_new_uid((item.id + "@quillfern.example").c_str()),
        icalproperty_new_dtstamp(
            icaltime_from_timet_with_zone(exported_at.milliseconds / 1000, 0, icaltimezone_get_utc_timezone())),
        icalproperty_new_dtstart(ical_date(item.day)), icalproperty_new_dtend(ical_date(item.day.plus_days(1))),
        icalproperty_new_summary(summary.c_str()), icalproperty_new_description(description_of(item).c_str()),
        icalproperty_new_categories(kind.c_str()), icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT),
        alarm_with(summary), nullptr);
}

std::string printed_by_libical(const std::vector<AgendaItem>& items)
{
    icalcomponent* calendar = icalcomponent_vanew(ICAL_VCALENDAR_COMPONENT, icalproperty_new_version("2.0"),
        icalproperty_new_prodid("-//Harrowgate//Quillfern//EN"), icalproperty_new_calscale("GREGORIAN"),
        icalproperty_new_method(ICAL_METHOD_PUBLISH), nullptr);
    for (const AgendaItem& item : items)
        icalcomponent_add_component(calendar, event_of(item));
    char* printed = icalcomponent_as_ical_string_r(calendar);
    std::string text(printed);
    icalmemory_free_buffer(printed);
    icalcomponent_free(calendar);
    return text;
}

void calendar_file(benchmark::State& state)
{
    const std::vector<AgendaItem> items =
        ICSExport::chosen(agenda(made_file(static_cast<std::size_t>(state.range(0)))), everything);
    const ICSExport::Calendar calendar{"Linden Ferry Community Pantry", "USD", Lang::en, exported_at};
    run_paired(
        state, [&] { benchmark::DoNotOptimize(ICSExport::text(items, everything, calendar)); },
        [&] { benchmark::DoNotOptimize(printed_by_libical(items)); });
    state.counters["events"] = static_cast<double>(items.size());
}

BENCHMARK(calendar_file)->Arg(200)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
