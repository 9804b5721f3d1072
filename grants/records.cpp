#include "grants/records.h"

#include <algorithm>
#include <limits>

namespace quillfern::grants {
namespace {

std::optional<Day> anchor_day(DateAnchor anchor, const Grant& grant)
{
    switch (anchor) {
    case DateAnchor::loiDue:
        return grant.loiDue;
    case DateAnchor::applicationDue:
        return grant.applicationDue;
    case DateAnchor::decision:
        return grant.decidedOn ? grant.decidedOn : grant.decisionExpected;
    case DateAnchor::awardStart:
        return grant.awardStart;
    case DateAnchor::awardEnd:
        return grant.awardEnd;
    }
    return std::nullopt;
}

} // namespace

std::optional<Day> resolve(const DateRule& rule, const Grant& grant)
{
    if (const auto* fixed = std::get_if<OnDay>(&rule))
        return fixed->day;
    const auto& offset = std::get<OffsetFrom>(rule);
    const auto anchor = anchor_day(offset.from, grant);
    return anchor ? std::optional(within_files(anchor->plus_days(offset.days))) : std::nullopt;
}

Day draft_day(const ReportPeriod& report, const FileSettings& settings)
{
    const std::int64_t lead = report.draftLeadDays.value_or(settings.draftLeadDays);
    return within_files(report.due.plus_days(-std::max(lead, -std::numeric_limits<std::int64_t>::max())));
}

} // namespace quillfern::grants
