#include "grants/grant_file_json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillfern::grants {
namespace {

using testing::HasSubstr;

const Uuid fresh_id = *Uuid::parse("00000000-0000-4000-8000-00000000000F");
const FreshValues fresh{[] { return fresh_id; }, Instant{1'700'000'000'000}};

GrantFileRead read(const std::string& json)
{
    auto result = read_grant_file(json, fresh);
    EXPECT_TRUE(result.ok()) << json << "\n" << (result ? "" : std::get<ReadError>(result.error()).text());
    return result ? *result : GrantFileRead{};
}

std::string refusal(const std::string& json)
{
    const auto result = read_grant_file(json, fresh);
    if (result)
        return "accepted";
    const ReadError* error = std::get_if<ReadError>(&result.error());
    return error ? error->text() : "newer format";
}

std::string with_grant(const std::string& members)
{
    return R"({"formatVersion": 2, "grants": [{)" + members + "}]}";
}

Grant read_grant(const std::string& members)
{
    const GrantFile file = read(with_grant(members)).file;
    return file.grants.empty() ? Grant{} : *file.grants.front();
}

constexpr std::string_view whole_file = R"({
  "board": {
    "actions": [],
    "address": "",
    "bodyName": "",
    "created": "2025-03-07T14:03:22.000Z",
    "defaultLengthMinutes": 90,
    "defaultLocation": "",
    "defaultStartMinutes": 1140,
    "formatVersion": 1,
    "id": "00000000-0000-4000-8000-000000000009",
    "meetings": [],
    "members": [
      {
        "email": "",
        "id": "00000000-0000-4000-8000-00000000000A",
        "inOffice": true,
        "name": "Ruth Abernathy",
        "phone": "",
        "role": "president",
        "title": "",
        "votes": true
      }
    ],
    "motionPrefix": "",
    "name": "",
    "orgType": "nonprofit",
    "quorum": {
      "majority": {}
    },
    "sample": false,
    "voteRule": {
      "basis": "votesCast",
      "threshold": "majority"
    }
  },
  "calendarAdded": {
    "a \"quoted\" key": "2026-01-02"
  },
  "formatVersion": 2,
  "funders": [
    {
      "address": "",
      "contactEmail": "",
      "contactName": "",
      "contactPhone": "",
      "cycle": "",
      "ein": "",
      "focus": "",
      "id": "00000000-0000-4000-8000-000000000001",
      "kind": "privateFoundation",
      "name": "Fundación Ñandú 🌱",
      "notes": "",
      "source": {
        "irs990PF": {
          "ein": "00-1",
          "taxYear": 2024
        }
      },
      "website": "https://example.org/a/b"
    }
  ],
  "grants": [
    {
      "ask": "1250.00",
      "attachments": [
        {
          "added": "2025-03-07T14:03:22.125Z",
          "byteCount": 7,
          "id": "00000000-0000-4000-8000-000000000002",
          "kind": "awardLetter",
          "originalName": "Letter.PDF",
          "storedName": "a.pdf"
        }
      ],
      "awardEnd": "2026-06-30",
      "created": "2025-03-07T14:03:22.000Z",
      "id": "00000000-0000-4000-8000-000000000003",
      "milestones": [
        {
          "done": true,
          "id": "00000000-0000-4000-8000-000000000004",
          "rule": {
            "offset": {
              "days": -14,
              "from": "awardEnd"
            }
          },
          "title": "Site visit"
        },
        {
          "done": false,
          "id": "00000000-0000-4000-8000-000000000005",
          "rule": {
            "on": {
              "_0": "2025-05-01"
            }
          },
          "title": "Tab\tand\nline \u0001"
        }
      ],
      "modified": "2025-03-07T14:03:22.000Z",
      "notes": "",
      "owner": "",
      "payments": [
        {
          "amount": "-0.05",
          "expected": "2026-01-01",
          "id": "00000000-0000-4000-8000-000000000006",
          "note": "",
          "receivedAmount": "0.00",
          "receivedOn": "2026-01-02"
        }
      ],
      "program": "",
      "reportPlan": {
        "dueDays": 30,
        "finalDueDays": 60,
        "frequency": "quarterly"
      },
      "reports": [
        {
          "due": "2026-02-28",
          "generated": true,
          "id": "00000000-0000-4000-8000-000000000007",
          "isFinal": false,
          "notes": "",
          "periodStart": "2025-11-01",
          "status": "notStarted",
          "title": "Quarter 1 report"
        }
      ],
      "stage": "awarded",
      "title": "Cold storage"
    }
  ],
  "org": {
    "city": "",
    "contactName": "",
    "contactTitle": "",
    "country": "",
    "currencyCode": "USD",
    "ein": "",
    "email": "",
    "fiscalYearStartMonth": 7,
    "legalName": "",
    "mission": "",
    "name": "Linden Ferry",
    "phone": "",
    "postalCode": "",
    "region": "",
    "street": "",
    "website": ""
  },
  "people": [
    {
      "email": "",
      "funderID": "00000000-0000-4000-8000-000000000001",
      "id": "00000000-0000-4000-8000-000000000008",
      "name": "Priya Raman",
      "notes": "",
      "phone": "",
      "role": "programOfficer",
      "title": ""
    }
  ],
  "settings": {
    "defaultReportPlan": {
      "dueDays": 30,
      "finalDueDays": 30,
      "frequency": "finalOnly"
    },
    "draftLeadDays": 10
  }
}
)";

TEST(GrantFileJson, WritesWhatItReadByteForByte)
{
    const GrantFileRead first = read(std::string(whole_file));
    EXPECT_TRUE(first.notes.empty());
    EXPECT_EQ(write_grant_file(first.file), whole_file);
    EXPECT_EQ(read(write_grant_file(first.file)).file, first.file);
}

TEST(GrantFileJson, AnAlmostEmptyFileOpensWithTheDefaults)
{
    GrantFile expected;
    expected.board = expected.board.with([](board::Board& empty) {
        empty.id = fresh_id;
        empty.created = fresh.now;
    });
    EXPECT_EQ(read(R"({"formatVersion": 2})").file, expected);
    EXPECT_EQ(read("\xEF\xBB\xBF {\"formatVersion\":2.0} \n").file, expected);
    expected.formatVersion = 1;
    EXPECT_EQ(read("{}").file, expected);
    EXPECT_THAT(write_grant_file(expected), HasSubstr("\"formatVersion\": 2"));
}

TEST(GrantFileJson, AGrantWithoutKeysIsAFreshGrant)
{
    const Grant grant = read_grant("");
    EXPECT_EQ(grant.id, fresh_id);
    EXPECT_EQ(grant.stage, Stage::prospect);
    EXPECT_EQ(grant.created, fresh.now);
    EXPECT_EQ(grant.modified, fresh.now);
}

TEST(GrantFileJson, NewerFormatsAreRefusedAndOlderOnesRead)
{
    EXPECT_EQ(refusal(R"({"formatVersion": 3})"), "newer format");
    EXPECT_EQ(refusal(R"({"formatVersion": 9223372036854775807})"), "newer format");
    EXPECT_EQ(refusal(R"({"formatVersion": -1})"), "accepted");
    EXPECT_EQ(refusal(R"({"board": {"formatVersion": 2}})"), "newer format");
}

TEST(GrantFileJson, AmountsAreExactDecimalsInTextAndInNumbers)
{
    const std::pair<std::string, std::int64_t> cases[] = {
        {"19.995", 2000},
        {"1.005", 101},
        {"-0.005", -1},
        {"1e3", 100'000},
        {"12.345e-1", 123},
        {"0.00499999999999999999999999999", 0},
        {"92233720368547758.07", 9'223'372'036'854'775'807},
    };
    for (const auto& [spelling, cents] : cases) {
        EXPECT_EQ(read_grant("\"ask\": " + spelling).ask, Money{cents}) << spelling;
        EXPECT_EQ(read_grant("\"ask\": \"" + spelling + "\"").ask, Money{cents}) << spelling;
    }
    for (const std::string bad : {"1e400", "92233720368547758.08", "\"1,000\"", "\"\"", "true", "[]", "\"0x10\""})
        EXPECT_THAT(refusal(with_grant("\"ask\": " + bad)), HasSubstr("grants[0].ask: Not an amount")) << bad;
}

TEST(GrantFileJson, RefusalsNameWhatAndWhere)
{
    const std::pair<std::string, std::string> cases[] = {
        {with_grant(R"("loiDue": "2024-13-01")"), "grants[0].loiDue: Not a date: 2024-13-01 (line 1, column 44)"},
        {with_grant("\n\"stage\": \"won\""), "grants[0].stage: Unknown value: won (line 2, column 10)"},
        {with_grant(R"("title": 5)"), "grants[0].title: Expected a text, found a number (line 1, column 43)"},
        {with_grant(R"("title": null)"), "Expected a text, found null"},
        {with_grant(R"("probability": 5.5)"), "grants[0].probability: Not a whole number in range: 5.5"},
        {with_grant(R"("probability": 9223372036854775808)"), "Not a whole number in range"},
        {with_grant(R"("id": "00000000-0000-4000-8000-00000000000")"), "Not a UUID: "},
        {with_grant(R"("created": "2025-03-07T14:03:22")"), "Not an ISO 8601 date:2025-03-07T14:03:22"},
        {with_grant(
             R"("payments": [{"id": "00000000-0000-4000-8000-000000000001", "expected": "2026-01-01", "note": ""}])"),
            "grants[0].payments[0].amount: Missing"},
        {with_grant(R"("milestones": [{"rule": {"on": {"_0": "2026-01-01"}, "offset": {}}}])"),
            "Invalid number of keys found, expected one."},
        {with_grant(R"("milestones": [{"rule": {"after": {}, "on": {"_0": "soon"}}}])"),
            "grants[0].milestones[0].rule: Invalid number of keys found, expected one."},
        {with_grant(R"("milestones": [{"rule": {}}])"), "Invalid number of keys found, expected one."},
        {with_grant(R"("milestones": [{"rule": {"after": {}}}])"), "Unknown value: after"},
        {with_grant(R"("title": "a", "title": "a")"), "Duplicate key: title"},
        {with_grant(R"("title": "a", "titl\u0065": "b")"), "Duplicate key: title"},
        {with_grant(R"("other": 1, "other": 2)"), "Duplicate key: other"},
        {R"({"calendarAdded": {"k": "2026-01-01", "k": "2026-01-01"}})", "Duplicate key"},
        {R"({"x": {"deep": [{"a": 1, "a": 2}]}})", "x.deep[0]: Duplicate key: a"},
        {R"({"org": []})", "org: Expected an object, found a list"},
        {R"({"board": 3})", "board: Expected an object, found a number"},
        {R"({"board": {"members": [{"name": "Ruth"}]}})", "board.members[0].id: Missing"},
        {"[]", "Expected an object"},
        {"", "Malformed JSON"},
        {"{", "Malformed JSON"},
        {"{} {}", "Malformed JSON"},
        {"{}}", "Malformed JSON"},
        {R"({"x": tru})", "Malformed JSON"},
        {R"({"x": 01})", "Malformed JSON"},
        {R"({"x": +1})", "Malformed JSON"},
        {R"({"x": 1.})", "Malformed JSON"},
        {R"({"x": [1,]})", "Malformed JSON"},
        {R"({"x": 1,})", "Malformed JSON"},
        {R"({"a": "b": 1})", "Malformed JSON"},
        {R"({"org": {"name": "b": 1}}})", "Malformed JSON"},
        {R"({"x": "\ud800"})", "Malformed JSON"},
        {with_grant(R"("title": "\udc00\ud800")"), "Malformed JSON"},
        {R"({"\ud800": 1})", "Malformed JSON"},
        {"{\"x\": \"\x80\"}", "Malformed JSON"},
        {"{\"x\": \"\xED\xA0\x80\"}", "Malformed JSON"},
        {"{\"x\": \"a\nb\"}", "Malformed JSON"},
        {"// comment\n{}", "Expected an object"},
    };
    for (const auto& [json, words] : cases)
        EXPECT_THAT(refusal(json), HasSubstr(words)) << json;
}

TEST(GrantFileJson, NestingIsBoundedAt512Levels)
{
    const auto nested = [](std::size_t lists) {
        return "{\"x\":" + std::string(lists, '[') + std::string(lists, ']') + "}";
    };
    EXPECT_EQ(refusal(nested(511)), "accepted");
    EXPECT_THAT(refusal(nested(512)), HasSubstr("Nested more than 512 levels deep"));
    EXPECT_THAT(refusal(nested(1'000'000)), HasSubstr("Nested more than 512 levels deep"));
}

TEST(GrantFileJson, TheProfileIsTolerantKeyByKeyAndSaysWhatItReplaced)
{
    const std::pair<std::string, std::int64_t> months[] = {{"0", 1}, {"13", 12}, {"\"July\"", 1}, {"7", 7}, {"7.0", 7}};
    for (const auto& [json, month] : months)
        EXPECT_EQ(read("{\"org\": {\"fiscalYearStartMonth\": " + json + "}}").file.org.fiscalYearStartMonth, month)
            << json;

    const GrantFileRead bent =
        read(R"({"org": {"name": {"en": ["x", {"y": 1}]}, "city": "Ferry", "currencyCode": null}})");
    EXPECT_EQ(bent.file.org.name, "");
    EXPECT_EQ(bent.file.org.city, "Ferry");
    EXPECT_EQ(bent.file.org.currencyCode, "USD");
    EXPECT_THAT(bent.notes,
        testing::ElementsAre(HasSubstr("org.name: Expected a text, found an object"), HasSubstr("org.currencyCode")));
}

TEST(GrantFileJson, WhatAToleratedValueHoldsIsStillChecked)
{
    EXPECT_THAT(refusal(R"({"org": {"name": [1, 02]}})"), HasSubstr("Malformed JSON"));
    EXPECT_THAT(refusal(R"({"org": {"name": {"a": 1, "a": 2}}})"), HasSubstr("Duplicate key: a"));
    EXPECT_THAT(refusal(R"({"org": {"name": "\ud800"}})"), HasSubstr("Malformed JSON"));
}

TEST(GrantFileJson, UnknownKeysAndEscapedTextAreRead)
{
    const Grant grant =
        read_grant(R"("future": {"a": [1, null, true, "x"]}, "title": "a\u0000b\/\ud83c\udf31", "zz": -1e5)");
    EXPECT_EQ(grant.title, std::string("a\0b/🌱", 8));
}

} // namespace
} // namespace quillfern::grants
