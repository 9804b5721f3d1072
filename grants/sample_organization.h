#pragma once

#include "board/calendar.h"
#include "grants/grant_file.h"
#include "grants/org_package.h"

#include <map>
#include <string>
#include <string_view>

/// Linden Ferry Community Pantry: an invented food pantry with seventeen grants, to look around in and to test with.
///
/// It holds every stage and every state of a report, late and future payments, dated and undated milestones, and files.
/// Its story moves with `today`, so that three things are always overdue and five due in the next seven days; on
/// September 10, 2026 its fiscal year begins in July, on other days in the month that keeps this year's thirteen grants
/// in one fiscal year. The same day, language and calendar give the same bytes. The calendar says when its board meets
/// (half past six in the evening).
namespace quillfern::grants {

struct SampleContent {
    GrantFile file;
    std::map<std::string, std::string> attachments; ///< stored name to bytes
    std::string_view logo; ///< PNG
};

SampleContent sample_content(const Day& today, Lang lang, const board::Calendar& calendar = board::Calendar::local());

/// The same as a document.
OrgPackage sample_organization(const Day& today, Lang lang, const board::Calendar& calendar = board::Calendar::local());

} // namespace quillfern::grants
