#pragma once

#include "base/instant.h"
#include "base/result.h"
#include "base/text.h"
#include "base/uuid.h"
#include "board/calendar.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillfern::board {

using quillfern::Lang;

enum class MinutesState { draft, circulated, approved };

/// One change of the minutes' state.
struct MinutesEvent {
    Instant date;
    MinutesState from = MinutesState::draft;
    MinutesState to = MinutesState::draft;
    std::string note; ///< the approval's reference or the reason for reopening

    friend bool operator==(const MinutesEvent&, const MinutesEvent&) = default;
};

/// Where one meeting's minutes stand, and every change on the way there.
///
/// Minutes are drafted, sent to the board (`circulated`), approved, and rarely reopened for a correction. The history
/// is only ever appended to: reopening keeps the events of the approval that it undoes.
struct MinutesRecord {
    MinutesState state = MinutesState::draft;
    std::optional<Instant> approvedOn;
    std::string approvalReference; ///< the motion's number or wording by which they were approved
    std::optional<Uuid> approvedAtMeetingID;
    std::vector<MinutesEvent> history; ///< oldest first

    friend bool operator==(const MinutesRecord&, const MinutesRecord&) = default;
};

struct MinutesNotAllowed {
    MinutesState from = MinutesState::draft;
    MinutesState to = MinutesState::draft;

    friend bool operator==(const MinutesNotAllowed&, const MinutesNotAllowed&) = default;
};

struct ApprovedBeforeMeeting {
    friend bool operator==(const ApprovedBeforeMeeting&, const ApprovedBeforeMeeting&) = default;
};

struct ReasonNeeded {
    friend bool operator==(const ReasonNeeded&, const ReasonNeeded&) = default;
};

using MinutesError = std::variant<MinutesNotAllowed, ApprovedBeforeMeeting, ReasonNeeded>;

/// When and how minutes were approved.
struct MinutesApproval {
    Instant date;
    std::string reference;
    std::optional<Uuid> meetingID; ///< the meeting that approved them
};

// Each of these changes the record as a whole, or refuses and leaves it untouched.

Result<Done, MinutesError> circulate(MinutesRecord& record, Instant date);

/// `meeting_date` is the start of the meeting whose minutes these are. They may be approved on its own day, whatever
/// the time, but not on an earlier day of `calendar`.
Result<Done, MinutesError> approve(
    MinutesRecord& record, const MinutesApproval& approval, Instant meeting_date, const Calendar& calendar);

/// Approved minutes are reopened only with a reason; minutes that were merely sent out need none.
Result<Done, MinutesError> reopen(MinutesRecord& record, Instant date, std::string_view note);

std::string message(const MinutesError& error, Lang lang);

/// The sentence under the title of printed minutes; for approved ones it is followed by the date of approval, which the
/// caller formats.
std::string_view status_text(MinutesState state, Lang lang);

/// What is printed across each page; empty for approved minutes.
std::string_view watermark(MinutesState state, Lang lang);

} // namespace quillfern::board
