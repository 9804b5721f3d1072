#pragma once

#include "grants/records.h"
#include "platform/random_uuid.h"

#include <cstdint>
#include <functional>
#include <vector>

/// Report periods from an award's dates and its report plan.
///
/// An award from 2025-02-01 to 2026-01-31 with quarterly reports owes four: Quarter 1 to 3, each due some days after
/// its period's end, and the final report in place of the fourth. A period starts whole months after the award's start,
/// on the same day of the month, or on the last one where the month is shorter.
namespace quillfern::grants {

/// What a regeneration did, for the user to read.
struct Outcome {
    std::int64_t added = 0;
    std::int64_t kept = 0;
    std::int64_t removed = 0;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

struct Regeneration {
    std::vector<ReportPeriod> reports;
    Outcome outcome;

    friend bool operator==(const Regeneration&, const Regeneration&) = default;
};

using FreshId = std::function<Uuid()>;

/// The grant's plan, or the file's when the grant has none.
const ReportPlan& report_plan(const Grant& grant, const FileSettings& settings);

/// Empty unless both award dates are set and in order; otherwise it ends with exactly one final report. A due date that
/// a file could not hold stops at the first or last day of the years 1 to 9999.
std::vector<ReportPeriod> generate_reports(
    const Grant& grant, const FileSettings& settings, Lang lang, const FreshId& fresh_id = platform::random_uuid);

/// The grant's reports after its dates or plan changed. What the user added, started or submitted is kept as it is; the
/// other generated periods make room for newly generated ones. A new period is left out when a kept one has its due
/// day, or was itself generated for the same period's end, so that no report is asked for twice.
Regeneration regenerate_reports(
    const Grant& grant, const FileSettings& settings, Lang lang, const FreshId& fresh_id = platform::random_uuid);

} // namespace quillfern::grants
