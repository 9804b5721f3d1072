#pragma once

#include "base/civil.h"
#include "base/instant.h"

#include <optional>

namespace quillfern::platform {

Instant now();

/// The date at that moment on the user's calendar, in the user's time zone (TZ, or the system's).
CivilDate local_date(Instant instant);

/// The moment at which the user's clock shows that time on that day. A time that a change to daylight-saving time skips
/// is moved past the gap. Absent when the system cannot tell. `hour` is 0 to 23, `minute` 0 to 59.
std::optional<Instant> local_instant(const CivilDate& date, int hour, int minute);

} // namespace quillfern::platform
