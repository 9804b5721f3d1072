#pragma once

#include "base/instant.h"
#include "base/uuid.h"
#include "board/minutes_record.h"
#include "board/votes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What happens at and between board meetings.
///
/// References between records are ids. A name field beside an id holds the name of someone who is no member.
namespace quillfern::board {

enum class MeetingKind { regular, special, annual, committee };
enum class AttendanceStatus { present, remote, absent, excused, leftEarly };
enum class MotionStatus { pending, voted, withdrawn, postponed, tabled };
enum class ActionStatus { open, inProgress, done, dropped };

/// The sections in the order in which an agenda shows them.
enum class AgendaSection {
    opening,
    minutes,
    consent,
    reports,
    oldBusiness,
    newBusiness,
    openForum,
    executive,
    closing
};

struct Attendance {
    Uuid memberID;
    AttendanceStatus status = AttendanceStatus::present;

    friend bool operator==(const Attendance&, const Attendance&) = default;
};

struct AgendaItem {
    Uuid id;
    AgendaSection section = AgendaSection::newBusiness;
    std::string title;
    std::string detail; ///< printed on the agenda
    std::optional<Uuid> presenterID;
    std::int64_t minutes = 0; ///< time allotted
    std::string notes; ///< taken at the meeting, printed in its minutes
    std::optional<Uuid> carriedMotionID; ///< a postponed or tabled motion of an earlier meeting
    std::optional<Uuid> carriedActionID; ///< an action item that is not done yet
    std::optional<Uuid> approvesMeetingID; ///< the earlier meeting whose minutes this item approves

    friend bool operator==(const AgendaItem&, const AgendaItem&) = default;
};

/// Whether a voted motion carried is no status: it is counted from `vote` and `rule`.
struct Motion {
    Uuid id;
    std::string number; ///< 2026-014
    std::string text;
    std::optional<Uuid> itemID; ///< the agenda item it was made under
    std::optional<Uuid> moverID;
    std::optional<Uuid> seconderID;
    std::string moverName;
    std::string seconderName;
    bool needsSecond = true;
    VoteRule rule;
    std::optional<VoteRecord> vote;
    MotionStatus status = MotionStatus::pending;
    std::optional<Uuid> resumes; ///< the postponed or tabled motion that this one takes up again
    std::string note;
    Instant made;

    friend bool operator==(const Motion&, const Motion&) = default;
};

struct ActionItem {
    Uuid id;
    std::string title;
    std::string detail;
    std::optional<Uuid> ownerID;
    std::string ownerName;
    std::optional<Instant> due;
    ActionStatus status = ActionStatus::open;
    std::optional<Uuid> meetingID; ///< where it was assigned
    std::optional<Uuid> motionID; ///< the motion that created it
    Instant created;
    std::optional<Instant> completed;

    friend bool operator==(const ActionItem&, const ActionItem&) = default;
};

struct Meeting {
    Uuid id;
    MeetingKind kind = MeetingKind::regular;
    std::string title;
    Instant date; ///< planned start
    std::int64_t lengthMinutes = 90;
    std::string location;
    std::vector<AgendaItem> agenda;
    std::vector<Attendance> attendance;
    std::string guests;
    std::optional<Uuid> presidingID;
    std::optional<Uuid> recorderID;
    std::optional<Instant> calledToOrder;
    std::optional<Instant> adjourned;
    std::vector<Motion> motions;
    MinutesRecord minutes;
    std::string notes; ///< what belongs to no agenda item
    std::string purpose;

    friend bool operator==(const Meeting&, const Meeting&) = default;
};

/// Stands for "other notes and motions" wherever an agenda item is expected; no agenda holds an item of this id.
inline constexpr Uuid other_business_id{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}};

/// The meeting's minutes were approved, and nothing of it may change until they are reopened.
inline bool is_locked(const Meeting& meeting)
{
    return meeting.minutes.state == MinutesState::approved;
}

/// An action item that someone still has to do.
constexpr bool is_open(ActionStatus status)
{
    return status == ActionStatus::open || status == ActionStatus::inProgress;
}

} // namespace quillfern::board
