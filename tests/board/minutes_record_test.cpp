#include "board/minutes_record.h"

#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;

namespace {

const Calendar utc = Calendar::with_offset(0);
const Uuid later_meeting = *Uuid::parse("11111111-0000-0000-0000-000000000001");

Instant at(std::string_view text)
{
    return *Instant::parse(text);
}

const Instant meeting_start = at("2026-08-25T18:30:00Z");

} // namespace

TEST(Minutes, GoFromDraftToApprovedAndBackWithTheirHistory)
{
    MinutesRecord record;
    ASSERT_TRUE(circulate(record, at("2026-08-30T09:00:00Z")).ok());
    ASSERT_TRUE(approve(record, {at("2026-09-22T18:40:00Z"), " 2026-018\n", later_meeting}, meeting_start, utc).ok());
    EXPECT_EQ(record.approvalReference, "2026-018");
    EXPECT_EQ(record.approvedAtMeetingID, later_meeting);
    ASSERT_TRUE(reopen(record, at("2026-10-01T08:00:00Z"), "\n a name \t").ok());
    EXPECT_EQ(record.state, MinutesState::draft);
    EXPECT_FALSE(record.approvedOn || record.approvedAtMeetingID || !record.approvalReference.empty());
    EXPECT_EQ(record.history,
        (std::vector<MinutesEvent>{{at("2026-08-30T09:00:00Z"), MinutesState::draft, MinutesState::circulated, ""},
            {at("2026-09-22T18:40:00Z"), MinutesState::circulated, MinutesState::approved, "2026-018"},
            {at("2026-10-01T08:00:00Z"), MinutesState::approved, MinutesState::draft, "a name"}}));
}

TEST(Minutes, AreApprovedFromTheMeetingsOwnDayOn)
{
    const struct {
        const char* approval;
        std::int64_t offset_minutes;
        bool allowed;
    } cases[] = {
        {"2026-08-25T00:00:00Z", 0, true}, // before the meeting's hour, on its day
        {"2026-08-24T23:59:59Z", 0, false},
        {"2026-08-25T03:59:00Z", -240, false}, // still the 24th four hours west
        {"2026-08-25T04:00:00Z", -240, true},
        {"2026-08-24T23:59:59Z", 540, false}, // nine hours east the meeting is on the 26th
        {"2026-08-25T15:00:00Z", 540, true},
    };
    for (const auto& one : cases) {
        MinutesRecord record;
        const auto done =
            approve(record, {at(one.approval), "", {}}, meeting_start, Calendar::with_offset(one.offset_minutes));
        EXPECT_EQ(done.ok(), one.allowed) << one.approval;
        EXPECT_TRUE(done.ok() || std::holds_alternative<ApprovedBeforeMeeting>(done.error()));
        EXPECT_EQ(record == MinutesRecord{}, !one.allowed);
    }
}

TEST(Minutes, RefuseEveryOtherStepAndStayUntouched)
{
    MinutesRecord draft, circulated, approved;
    ASSERT_TRUE(circulate(circulated, meeting_start).ok());
    ASSERT_TRUE(approve(approved, {meeting_start, "by general consent", {}}, meeting_start, utc).ok());
    const auto refused = [](MinutesRecord record, auto&& step) {
        const MinutesRecord before = record;
        const Result<Done, MinutesError> result = step(record);
        EXPECT_TRUE(record == before);
        return message(result.error(), Lang::en);
    };
    const auto send = [](MinutesRecord& record) { return circulate(record, meeting_start); };
    const auto accept = [](MinutesRecord& record) {
        return approve(record, {meeting_start, "", {}}, meeting_start, utc);
    };
    const auto back = [](MinutesRecord& record) { return reopen(record, meeting_start, " \u00A0\n"); };
    EXPECT_EQ(refused(circulated, send), "Minutes can't go from “Sent for approval” to “Sent for approval”.");
    EXPECT_EQ(refused(approved, send), "Minutes can't go from “Approved” to “Sent for approval”.");
    EXPECT_EQ(refused(approved, accept), "Minutes can't go from “Approved” to “Approved”.");
    EXPECT_EQ(refused(draft, back), "Minutes can't go from “Draft” to “Draft”.");
    EXPECT_EQ(refused(approved, back), "Say why the approved minutes are being reopened.");
    EXPECT_TRUE(back(circulated).ok());
    EXPECT_EQ(message(MinutesNotAllowed{MinutesState::approved, MinutesState::circulated}, Lang::es),
        "El acta no puede pasar de «Aprobada» a «Enviada para aprobación».");
}
