#include "board/sample_meeting.h"

#include "board/board_values.h"
#include "board/motion_edits.h"

namespace quillfern::board {
namespace {

constexpr std::int64_t ms_per_minute = 60'000;
constexpr std::uint32_t items_per_meeting = 100;

std::uint32_t motion_count(const Board& board)
{
    std::size_t count = 0;
    for (const Shared<Meeting>& meeting : board.meetings)
        count += meeting->motions.size();
    return static_cast<std::uint32_t>(count);
}

} // namespace

SampleMeeting::SampleMeeting(SampleStory& story, MeetingKind kind, Instant date) : story_(story)
{
    meeting_.id = story.id(SampleRecord::meeting, static_cast<std::uint32_t>(story.board.meetings.size() + 1));
    meeting_.kind = kind;
    meeting_.date = date;
    meeting_.lengthMinutes = story.board.defaultLengthMinutes;
    meeting_.location = story.board.defaultLocation;
    meeting_.presidingID = member_holding(story.board, Role::president)->id;
    meeting_.recorderID = member_holding(story.board, Role::secretary)->id;
}

SampleMeeting::~SampleMeeting()
{
    story_.board.meetings.emplace_back(std::move(meeting_));
}

SampleMeeting& SampleMeeting::held(std::int64_t late_minutes, std::int64_t length_minutes)
{
    meeting_.calledToOrder = Instant{meeting_.date.milliseconds + late_minutes * ms_per_minute};
    meeting_.adjourned = Instant{meeting_.calledToOrder->milliseconds + length_minutes * ms_per_minute};
    return *this;
}

SampleMeeting& SampleMeeting::marked(AttendanceStatus status, std::initializer_list<std::uint32_t> members)
{
    for (const std::uint32_t number : members) {
        const Uuid id = story_.id(SampleRecord::member, number);
        std::erase_if(meeting_.attendance, [&](const Attendance& mark) { return mark.memberID == id; });
        meeting_.attendance.push_back({id, status});
    }
    return *this;
}

SampleMeeting& SampleMeeting::all_present()
{
    for (const Member& member : voting_members(story_.board))
        meeting_.attendance.push_back({member.id, AttendanceStatus::present});
    return *this;
}

SampleMeeting& SampleMeeting::about(std::string purpose)
{
    meeting_.purpose = std::move(purpose);
    return *this;
}

SampleMeeting& SampleMeeting::guests(std::string names)
{
    meeting_.guests = std::move(names);
    return *this;
}

SampleMeeting& SampleMeeting::item(
    AgendaSection section, std::string title, std::int64_t minutes, std::uint32_t presenter)
{
    const auto meeting_number = static_cast<std::uint32_t>(story_.board.meetings.size() + 1);
    const auto place = static_cast<std::uint32_t>(meeting_.agenda.size() + 1);
    AgendaItem& item = meeting_.agenda.emplace_back();
    item.id = story_.id(SampleRecord::item, meeting_number * items_per_meeting + place);
    item.section = section;
    item.title = std::move(title);
    item.minutes = minutes;
    if (presenter)
        item.presenterID = story_.id(SampleRecord::member, presenter);
    return *this;
}

SampleMeeting& SampleMeeting::detail(std::string text)
{
    meeting_.agenda.back().detail = std::move(text);
    return *this;
}

SampleMeeting& SampleMeeting::notes(std::string text)
{
    meeting_.agenda.back().notes = std::move(text);
    return *this;
}

SampleMeeting& SampleMeeting::approves(std::uint32_t meeting)
{
    meeting_.agenda.back().approvesMeetingID = story_.id(SampleRecord::meeting, meeting);
    return *this;
}

SampleMeeting& SampleMeeting::carries_motion(std::uint32_t motion)
{
    meeting_.agenda.back().carriedMotionID = story_.id(SampleRecord::motion, motion);
    return *this;
}

SampleMeeting& SampleMeeting::carries_action(std::uint32_t action)
{
    meeting_.agenda.back().carriedActionID = story_.id(SampleRecord::action, action);
    return *this;
}

SampleMeeting& SampleMeeting::motion(std::string text, std::uint32_t mover, std::uint32_t seconder)
{
    const auto number = motion_count(story_.board) + static_cast<std::uint32_t>(meeting_.motions.size()) + 1;
    Motion& motion = meeting_.motions.emplace_back();
    motion.id = story_.id(SampleRecord::motion, number);
    motion.made = Instant{meeting_.date.milliseconds + std::int64_t(meeting_.motions.size()) * 10 * ms_per_minute};
    motion.number = story_.next_number(motion.made);
    motion.text = std::move(text);
    motion.itemID = meeting_.agenda.back().id;
    if (mover)
        motion.moverID = story_.id(SampleRecord::member, mover);
    if (seconder)
        motion.seconderID = story_.id(SampleRecord::member, seconder);
    motion.needsSecond = seconder != 0;
    motion.rule = story_.board.voteRule;
    return *this;
}

SampleMeeting& SampleMeeting::decided_by(Threshold threshold, VoteBasis basis)
{
    meeting_.motions.back().rule = {threshold, basis};
    return *this;
}

SampleMeeting& SampleMeeting::vote(VoteRecord record)
{
    meeting_.motions.back().vote = std::move(record);
    meeting_.motions.back().status = MotionStatus::voted;
    return *this;
}

SampleMeeting& SampleMeeting::counted(
    std::int64_t ayes, std::int64_t nays, std::int64_t abstentions, std::int64_t recusals)
{
    VoteRecord record = draft_vote(story_.board, meeting_, VoteMethod::counts);
    record.ayes = ayes;
    record.nays = nays;
    record.abstentions = abstentions;
    record.recusals = recusals;
    return vote(std::move(record));
}

SampleMeeting& SampleMeeting::counted_with(std::int64_t present, std::int64_t ayes)
{
    VoteRecord record = draft_vote(story_.board, meeting_, VoteMethod::counts);
    record.presentVoting = present;
    record.ayes = ayes;
    record.quorumMet = quorum_status(story_.board, present).met();
    return vote(std::move(record));
}

SampleMeeting& SampleMeeting::roll_call(
    std::initializer_list<std::uint32_t> nays, std::initializer_list<std::uint32_t> abstaining)
{
    VoteRecord record = draft_vote(story_.board, meeting_, VoteMethod::rollCall);
    const auto choose = [&](std::initializer_list<std::uint32_t> members, VoteChoice choice) {
        for (RollCallEntry& entry : record.rollCall)
            for (const std::uint32_t member : members)
                if (entry.memberID == story_.id(SampleRecord::member, member))
                    entry.choice = choice;
    };
    choose(nays, VoteChoice::nay);
    choose(abstaining, VoteChoice::abstain);
    return vote(std::move(record));
}

SampleMeeting& SampleMeeting::general_consent()
{
    return vote(draft_vote(story_.board, meeting_, VoteMethod::generalConsent));
}

SampleMeeting& SampleMeeting::put_off(MotionStatus status)
{
    meeting_.motions.back().status = status;
    return *this;
}

SampleMeeting& SampleMeeting::resumes(std::uint32_t motion)
{
    meeting_.motions.back().resumes = story_.id(SampleRecord::motion, motion);
    return *this;
}

SampleMeeting& SampleMeeting::remark(std::string text)
{
    meeting_.motions.back().note = std::move(text);
    return *this;
}

} // namespace quillfern::board
