#pragma once

#include "board/sample_meeting.h"

namespace quillfern::board {

void tell_nonprofit(SampleStory& story);
void tell_nonprofit_meetings(SampleStory& story);
void tell_homeowners(SampleStory& story);
void tell_club(SampleStory& story);

} // namespace quillfern::board
