#include "grants/ics_export.h"
#include "grants/labels.h"

#include <gtest/gtest.h>
#include <libical/ical.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::grants {
namespace {

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Calendar = std::unique_ptr<icalcomponent, FreeComponent>;

constexpr Instant exported_at{1'798'761'599'999};
constexpr ICSExport::Options options{.alertDays = 3};

/// Titles that try to break out of their line, at lengths around every fold.
std::vector<AgendaItem> hostile_items()
{
    constexpr std::string_view titles[] = {"Plain", "Comma, semicolon; colon: \"quote\" \\backslash\\n", "Two\nlines",
        "Ñandú 🌿 naïve", "END:VEVENT\nBEGIN:VEVENT", "\\", "a\tb", "=cmd,;", "X=\"Y\":Z"};
    std::vector<AgendaItem> items;
    for (std::size_t length = 0; length < 160; ++length) {
        AgendaItem& item = items.emplace_back();
        item.id = "report-" + std::to_string(length);
        item.kind = static_cast<AgendaKind>(length % 7);
        item.day = Day{2027, 12, 1}.plus_days(static_cast<std::int64_t>(length));
        item.grantTitle = std::string(titles[length % std::size(titles)]) + std::string(length, 'x') + "é🌿";
        item.funderName = titles[(length + 1) % std::size(titles)];
        if (length % 3 == 0)
            item.amount = Money{static_cast<std::int64_t>(length) * 123'456};
        if (length % 5 == 0)
            item.client = "Client; one";
    }
    return items;
}

std::string summary_of(const AgendaItem& item)
{
    return (item.client.empty() ? "" : item.client + ": ") + std::string(label(item.kind, Lang::en)) + " · "
        + item.grantTitle;
}

std::string description_of(const AgendaItem& item)
{
    return (item.client.empty() ? "" : "Client: " + item.client + "\n") + "Grant: " + item.grantTitle
        + "\nFunder: " + item.funderName + "\n"
        + (item.amount ? "Amount: " + display_text(*item.amount, "USD", Lang::en) + "\n" : "") + "From Quillfern";
}

std::string date_text(icaltimetype time)
{
    EXPECT_TRUE(time.is_date);
    return Day{time.year, time.month, time.day}.text();
}

void expect_alarm(icalcomponent* event, const AgendaItem& item)
{
    icalcomponent* alarm = icalcomponent_get_first_component(event, ICAL_VALARM_COMPONENT);
    ASSERT_NE(alarm, nullptr);
    EXPECT_EQ(icalcomponent_count_components(event, ICAL_VALARM_COMPONENT), 1);
    EXPECT_EQ(icalcomponent_get_description(alarm), summary_of(item));
    const icaltriggertype trigger =
        icalproperty_get_trigger(icalcomponent_get_first_property(alarm, ICAL_TRIGGER_PROPERTY));
    constexpr int hours_to_nine_o_clock_three_days_before = -(3 * 24 - 9);
    EXPECT_EQ(icaldurationtype_as_int(trigger.duration), hours_to_nine_o_clock_three_days_before * 3600);
}

void expect_event(icalcomponent* event, const AgendaItem& item)
{
    EXPECT_EQ(icalcomponent_get_uid(event), item.id + "@quillfern.example");
    EXPECT_STREQ(icaltime_as_ical_string(icalcomponent_get_dtstamp(event)), "20261231T235959Z");
    EXPECT_EQ(date_text(icalcomponent_get_dtstart(event)), item.day.text());
    EXPECT_EQ(date_text(icalcomponent_get_dtend(event)), item.day.plus_days(1).text());
    EXPECT_EQ(icalcomponent_get_summary(event), summary_of(item));
    EXPECT_EQ(icalcomponent_get_description(event), description_of(item));
    icalproperty* categories = icalcomponent_get_first_property(event, ICAL_CATEGORIES_PROPERTY);
    EXPECT_EQ(icalproperty_get_categories(categories), std::string(label(item.kind, Lang::en)));
    icalproperty* transparency = icalcomponent_get_first_property(event, ICAL_TRANSP_PROPERTY);
    EXPECT_EQ(icalproperty_get_transp(transparency), ICAL_TRANSP_TRANSPARENT);
    expect_alarm(event, item);
}

TEST(Libical, ReadsEveryEventOfACalendarFileAsItWasMeant)
{
    const std::vector<AgendaItem> items = hostile_items();
    const std::string text = ICSExport::text(items, options, {"Linden; Ferry", "USD", Lang::en, exported_at});
    const Calendar calendar(icalparser_parse_string(text.c_str()));
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(icalcomponent_isa(calendar.get()), ICAL_VCALENDAR_COMPONENT);
    EXPECT_EQ(icalcomponent_count_errors(calendar.get()), 0);
    icalproperty* name = icalcomponent_get_first_property(calendar.get(), ICAL_X_PROPERTY);
    EXPECT_STREQ(icalproperty_get_value_as_string(name), "Linden; Ferry");

    icalcomponent* event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT);
    for (const AgendaItem& item : items) {
        ASSERT_NE(event, nullptr) << item.id;
        expect_event(event, item);
        event = icalcomponent_get_next_component(calendar.get(), ICAL_VEVENT_COMPONENT);
    }
    EXPECT_EQ(event, nullptr);
}

} // namespace
} // namespace quillfern::grants
