#include "grants/agenda_actions.h"

#include "grants/agenda_entries.h"

#include <algorithm>

namespace quillfern::grants {
namespace {

std::optional<Uuid> record_id(const Grant& grant, const AgendaEntry& entry)
{
    switch (entry.kind) {
    case AgendaKind::report:
    case AgendaKind::reportDraft:
        return grant.reports[entry.index].id;
    case AgendaKind::payment:
        return grant.payments[entry.index].id;
    case AgendaKind::milestone:
        return grant.milestones[entry.index].id;
    case AgendaKind::loi:
    case AgendaKind::application:
    case AgendaKind::decision:
        break;
    }
    return std::nullopt;
}

std::optional<AgendaEntry> open_entry(const Grant& grant, const FileSettings& settings, const AgendaItem& item)
{
    std::optional<AgendaEntry> found;
    for_each_entry(grant, settings, [&](const AgendaEntry& entry) {
        if (!found && !entry.done && entry.kind == item.kind && record_id(grant, entry) == item.itemID)
            found = entry;
    });
    return found;
}

void send_letter(Grant& grant, const Day& today)
{
    grant.loiSubmittedOn = today;
    grant.stage = std::max(grant.stage, Stage::loi);
}

void send_application(Grant& grant, const Day& today)
{
    grant.submittedOn = today;
    grant.stage = std::max(grant.stage, Stage::submitted);
}

void send_report(ReportPeriod& report, const Day& today)
{
    report.status = ReportStatus::submitted;
    report.submittedOn = today;
}

void record(Grant& grant, const AgendaEntry& entry, const Day& today)
{
    switch (entry.kind) {
    case AgendaKind::loi:
        return send_letter(grant, today);
    case AgendaKind::application:
        return send_application(grant, today);
    case AgendaKind::report:
        return send_report(grant.reports[entry.index], today);
    case AgendaKind::reportDraft:
        grant.reports[entry.index].status = ReportStatus::drafting;
        return;
    case AgendaKind::payment:
        grant.payments[entry.index].receivedOn = today;
        return;
    case AgendaKind::milestone:
        grant.milestones[entry.index].done = true;
        return;
    case AgendaKind::decision:
        return;
    }
}

} // namespace

std::optional<AgendaAction> action_of(const AgendaItem& item)
{
    if (item.done)
        return std::nullopt;
    switch (item.kind) {
    case AgendaKind::loi:
    case AgendaKind::application:
    case AgendaKind::report:
        return AgendaAction::markSubmitted;
    case AgendaKind::reportDraft:
        return AgendaAction::startDraft;
    case AgendaKind::payment:
        return AgendaAction::markReceived;
    case AgendaKind::milestone:
        return AgendaAction::markDone;
    case AgendaKind::decision:
        break;
    }
    return std::nullopt;
}

GrantFile perform(const GrantFile& file, const AgendaItem& item, const Day& today, Instant now)
{
    if (!action_of(item))
        return file;
    GrantFile changed = file;
    for (Shared<Grant>& grant : changed.grants) {
        if (grant->id != item.grantID)
            continue;
        const auto entry = open_entry(grant, file.settings, item);
        if (!entry)
            continue;
        grant = grant.with([&](Grant& each) {
            record(each, *entry, today);
            each.modified = now;
        });
        break;
    }
    return changed;
}

} // namespace quillfern::grants
