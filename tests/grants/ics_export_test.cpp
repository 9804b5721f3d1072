#include "grants/ics_export.h"

#include "grants/ics_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quillfern::grants {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::Not;

constexpr Instant exported_at{1'798'761'599'999}; // 2026-12-31T23:59:59.999Z

AgendaItem example_item()
{
    AgendaItem item;
    item.id = "application-7D4C2A10-0000-4000-8000-00000000000A";
    item.kind = AgendaKind::application;
    item.day = Day{2027, 12, 31};
    item.grantTitle = "Cold, dry; storage";
    item.funderName = "Juniper";
    item.amount = Money{125050};
    return item;
}

std::string export_of(const AgendaItem& item, std::int64_t alert_days = 0, Lang lang = Lang::en)
{
    ICSExport::Options options;
    options.alertDays = alert_days;
    return ICSExport::text({item}, options, {"Linden, Ferry", "USD", lang, exported_at});
}

TEST(ICSExport, WritesOneAllDayEventAnItem)
{
    EXPECT_EQ(export_of(example_item(), 3),
        "BEGIN:VCALENDAR\r\n"
        "VERSION:2.0\r\n"
        "PRODID:-//Harrowgate//Quillfern//EN\r\n"
        "CALSCALE:GREGORIAN\r\n"
        "METHOD:PUBLISH\r\n"
        "X-WR-CALNAME:Linden\\, Ferry\r\n"
        "BEGIN:VEVENT\r\n"
        "UID:application-7d4c2a10-0000-4000-8000-00000000000a@quillfern.example\r\n"
        "DTSTAMP:20261231T235959Z\r\n"
        "DTSTART;VALUE=DATE:20271231\r\n"
        "DTEND;VALUE=DATE:20280101\r\n"
        "SUMMARY:Application due · Cold\\, dry\\; storage\r\n"
        "DESCRIPTION:Grant: Cold\\, dry\\; storage\\nFunder: Juniper\\nAmount: $1\\,250.5\r\n"
        " 0\\nFrom Quillfern\r\n"
        "CATEGORIES:Application due\r\n"
        "TRANSP:TRANSPARENT\r\n"
        "BEGIN:VALARM\r\n"
        "ACTION:DISPLAY\r\n"
        "DESCRIPTION:Application due · Cold\\, dry\\; storage\r\n"
        "TRIGGER:-P2DT15H\r\n"
        "END:VALARM\r\n"
        "END:VEVENT\r\n"
        "END:VCALENDAR\r\n");
}

TEST(ICSExport, FollowsLanguageClientAndAlertDays)
{
    AgendaItem item = example_item();
    item.client = "Linden";
    item.grantTitle = "Frío";
    item.amount.reset();
    item.funderName.clear();
    const std::string spanish = export_of(item, 1, Lang::es);
    EXPECT_THAT(spanish, HasSubstr("\r\nSUMMARY:Linden: Vence la solicitud · Frío\r\n"));
    EXPECT_THAT(spanish,
        HasSubstr("\r\nDESCRIPTION:Cliente: Linden\\nSubvención: Frío\\nFinanciador: \\nDesde Quill\r\n fern\r\n"));
    EXPECT_THAT(spanish, HasSubstr("\r\nTRIGGER:-PT15H\r\n"));
    EXPECT_THAT(export_of(item, 0), Not(HasSubstr("VALARM")));
    EXPECT_THAT(export_of(item, -1), Not(HasSubstr("VALARM")));
}

TEST(ICSExport, LeavesOutWhatIsDoneAndWhatWasNotAskedFor)
{
    std::vector<AgendaItem> items;
    for (const AgendaKind kind : {AgendaKind::loi, AgendaKind::decision, AgendaKind::reportDraft, AgendaKind::payment,
             AgendaKind::milestone, AgendaKind::report, AgendaKind::application}) {
        items.push_back(example_item());
        items.back().kind = kind;
        items.push_back(items.back());
        items.back().done = true;
    }
    const auto count = [&](const ICSExport::Options& options) { return ICSExport::chosen(items, options).size(); };
    EXPECT_EQ(count({}), 4U);
    EXPECT_EQ(count({.includeDraftDates = true}), 5U);
    EXPECT_EQ(count({.includePayments = true}), 5U);
    EXPECT_EQ(count({.includeDecisions = true}), 5U);
    EXPECT_EQ(count({.includeDraftDates = true, .includePayments = true, .includeDecisions = true}), 7U);
    EXPECT_EQ(ICSExport::chosen(items, {.includeDecisions = true})[1].kind, AgendaKind::decision) << "in their order";
}

TEST(ICSLines, EscapesBreaksAndKeepsControlCharactersIn)
{
    struct Case {
        std::string text;
        std::string_view expected;
    };
    for (const Case& value : {
             Case{R"(a\b;c,d:e"f)", R"(a\\b\;c\,d:e"f)"},
             Case{"a\nb\r\nc\rd\n\re", R"(a\nb\nc\nd\n\ne)"},
             Case{"a\tb\0c\x1B[0m\x7F"s, "a\tb c [0m "},
             Case{"a\u0085b\u009Fé\u00A0", "a b é\u00A0"},
             Case{"ends in half a character \xC2", "ends in half a character \xC2"},
         }) {
        std::string out;
        append_ics_text(out, value.text);
        EXPECT_EQ(out, value.expected);
    }
}

TEST(ICSLines, FoldsAtOctetsWithoutSplittingACharacter)
{
    const auto written = [](const std::string& line) {
        std::string out = "before\r\n";
        ICSLines(out).line(line);
        return out.substr(8);
    };
    EXPECT_EQ(written(std::string(75, 'a')), std::string(75, 'a') + "\r\n");
    EXPECT_EQ(written(std::string(76, 'a')), std::string(75, 'a') + "\r\n a\r\n");
    EXPECT_EQ(written(std::string(150, 'a')), std::string(75, 'a') + "\r\n " + std::string(74, 'a') + "\r\n a\r\n");
    EXPECT_EQ(written(std::string(73, 'a') + "🌿b"), std::string(73, 'a') + "\r\n 🌿b\r\n");
    EXPECT_EQ(written(std::string(74, 'a') + "é"), std::string(74, 'a') + "\r\n é\r\n");
    EXPECT_EQ(written(std::string(80, '\x80')), std::string(75, '\x80') + "\r\n " + std::string(5, '\x80') + "\r\n")
        << "bytes that are no UTF-8 are folded all the same";
}

} // namespace
} // namespace quillfern::grants
