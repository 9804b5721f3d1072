#pragma once

#include "board/sample_story.h"

#include <initializer_list>
#include <string>

namespace quillfern::board {

/// One meeting of a story. Members are told by their place in the board's list, from 1; what is said of an item or a
/// motion is said of the one named last. The meeting joins the board when its telling ends.
class SampleMeeting {
public:
    SampleMeeting(SampleStory& story, MeetingKind kind, Instant date);
    ~SampleMeeting();
    SampleMeeting(const SampleMeeting&) = delete;
    SampleMeeting(SampleMeeting&&) = delete;
    SampleMeeting& operator=(const SampleMeeting&) = delete;
    SampleMeeting& operator=(SampleMeeting&&) = delete;

    SampleMeeting& held(std::int64_t late_minutes, std::int64_t length_minutes);
    SampleMeeting& marked(AttendanceStatus status, std::initializer_list<std::uint32_t> members);
    SampleMeeting& all_present(); ///< the voting members; marks made afterwards replace theirs
    SampleMeeting& about(std::string purpose);
    SampleMeeting& guests(std::string names);

    SampleMeeting& item(AgendaSection section, std::string title, std::int64_t minutes, std::uint32_t presenter = 0);
    SampleMeeting& detail(std::string text);
    SampleMeeting& notes(std::string text);
    SampleMeeting& approves(std::uint32_t meeting);
    SampleMeeting& carries_motion(std::uint32_t motion);
    SampleMeeting& carries_action(std::uint32_t action);

    SampleMeeting& motion(std::string text, std::uint32_t mover, std::uint32_t seconder);
    SampleMeeting& decided_by(Threshold threshold, VoteBasis basis);
    SampleMeeting& counted(
        std::int64_t ayes, std::int64_t nays, std::int64_t abstentions = 0, std::int64_t recusals = 0);
    SampleMeeting& counted_with(std::int64_t present, std::int64_t ayes); ///< after others had left
    SampleMeeting& roll_call(
        std::initializer_list<std::uint32_t> nays, std::initializer_list<std::uint32_t> abstaining);
    SampleMeeting& general_consent();
    SampleMeeting& put_off(MotionStatus status);
    SampleMeeting& resumes(std::uint32_t motion);
    SampleMeeting& remark(std::string text);

private:
    SampleMeeting& vote(VoteRecord record);

    SampleStory& story_;
    Meeting meeting_;
};

} // namespace quillfern::board
