#pragma once

#include "base/uuid.h"
#include "grants/grant_file.h"

#include <optional>
#include <string>
#include <vector>

namespace quillfern::grants {

enum class AgendaKind { loi, application, decision, reportDraft, report, payment, milestone };
enum class Bucket { overdue, thisWeek, next30, next90, later };

/// One dated thing to do for a grant.
struct AgendaItem {
    std::string id; ///< kind-grant or kind-grant-record: the same for the same thing in every run, a key of reminders
    AgendaKind kind = AgendaKind::loi;
    Day day;
    Uuid grantID;
    std::optional<Uuid> itemID; ///< the report, payment or milestone it stands for
    std::string detail;
    std::string grantTitle;
    std::string funderName; ///< empty when the grant has no funder
    std::optional<Money> amount;
    bool done = false;
    std::string client; ///< the organization, when an agenda spans several files

    friend bool operator==(const AgendaItem&, const AgendaItem&) = default;
};

/// Every dated thing of the file, done ones included, in agenda order: by day, then by kind (applications first,
/// expected decisions last), then by grant title, then by id, so that the order is total.
///
/// Each open thing is listed exactly once: a letter of inquiry that is not sent stays while the request is a prospect
/// or a letter; an application until it is submitted or decided; a decision while the request is open. A declined or
/// withdrawn request owes nothing, but what was done for it stays on record.
std::vector<AgendaItem> agenda(const GrantFile& file);

/// As agenda(), without what is done.
std::vector<AgendaItem> open_agenda(const GrantFile& file);

/// Whether `a` comes before `b` in agenda order; merges the agendas of several files.
bool comes_before(const AgendaItem& a, const AgendaItem& b);

/// Today and the seven days after it are `thisWeek`, deliberately eight days in all.
Bucket bucket(const Day& day, const Day& today);

} // namespace quillfern::grants
