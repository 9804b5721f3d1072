#include "grants/agenda.h"

#include "grants/agenda_entries.h"
#include "grants/record_fields.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>
#include <unordered_map>

namespace quillfern::grants {
namespace {

/// By AgendaKind: on one day what must be sent comes first, what others must do comes last.
constexpr std::array<std::int64_t, 7> kind_ranks = {1, 0, 6, 4, 2, 5, 3};

std::int64_t rank(AgendaKind kind)
{
    return kind_ranks[static_cast<std::size_t>(kind)];
}

/// What an item is sorted by. Sorting these instead of the items moves no strings, and titles are compared once a
/// grant, not once a comparison.
struct Ref {
    std::int64_t day_and_rank; ///< days since 1970 × 8 + the kind's rank
    std::uint32_t title_rank;
    std::uint32_t grant;
    std::uint32_t record;
    AgendaKind kind;
    bool done;
};

constexpr int rank_bits = 3;

std::int64_t packed(const Day& day, AgendaKind kind)
{
    return (day.days_since_epoch() << rank_bits) + rank(kind);
}

Day unpacked_day(std::int64_t day_and_rank)
{
    return Day::from_days_since_epoch(day_and_rank >> rank_bits);
}

/// For each grant its place in the order of titles; equal titles share one.
std::vector<std::uint32_t> title_ranks(const GrantFile& file)
{
    std::vector<std::uint32_t> order(file.grants.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto title = [&](std::uint32_t index) -> const std::string& { return file.grants[index]->title; };
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return title(a) < title(b); });
    std::vector<std::uint32_t> ranks(order.size());
    for (std::size_t i = 1; i < order.size(); ++i)
        ranks[order[i]] = ranks[order[i - 1]] + (title(order[i - 1]) == title(order[i]) ? 0 : 1);
    return ranks;
}

std::optional<Uuid> record_id(const Grant& grant, AgendaKind kind, std::size_t record)
{
    switch (kind) {
    case AgendaKind::report:
    case AgendaKind::reportDraft:
        return grant.reports[record].id;
    case AgendaKind::payment:
        return grant.payments[record].id;
    case AgendaKind::milestone:
        return grant.milestones[record].id;
    case AgendaKind::loi:
    case AgendaKind::application:
    case AgendaKind::decision:
        break;
    }
    return std::nullopt;
}

const std::string& detail(const Grant& grant, AgendaKind kind, std::size_t record)
{
    static const std::string none;
    switch (kind) {
    case AgendaKind::report:
    case AgendaKind::reportDraft:
        return grant.reports[record].title;
    case AgendaKind::payment:
        return grant.payments[record].note;
    case AgendaKind::milestone:
        return grant.milestones[record].title;
    case AgendaKind::loi:
    case AgendaKind::application:
    case AgendaKind::decision:
        break;
    }
    return none;
}

std::optional<Money> amount(const Grant& grant, AgendaKind kind, std::size_t record)
{
    if (kind == AgendaKind::payment)
        return grant.payments[record].amount;
    const bool own_date = kind <= AgendaKind::decision;
    return own_date ? grant.ask : std::nullopt;
}

std::string item_id(AgendaKind kind, const Uuid& grant, const std::optional<Uuid>& record)
{
    constexpr std::size_t uuid_length = 36;
    const std::string_view name = case_name(kind);
    std::string id(name);
    id.resize(name.size() + (record ? 2 : 1) * (1 + uuid_length), '-');
    write_lower_uuid(grant, &id[name.size() + 1]);
    if (record)
        write_lower_uuid(*record, &id[name.size() + uuid_length + 2]);
    return id;
}

/// Collects, sorts and writes out the agenda of one file.
class Agenda {
public:
    Agenda(const GrantFile& file, bool with_done) : file_(file), with_done_(with_done) { }

    std::vector<AgendaItem> items()
    {
        collect();
        std::sort(refs_.begin(), refs_.end(), [this](const Ref& a, const Ref& b) { return before(a, b); });
        for (const auto& funder : file_.funders)
            funder_names_.try_emplace(funder->id, &funder->name);
        std::vector<AgendaItem> items;
        items.reserve(refs_.size());
        for (const Ref& ref : refs_)
            items.push_back(item(ref));
        return items;
    }

private:
    void collect()
    {
        const auto ranks = title_ranks(file_);
        for (std::uint32_t g = 0; g < file_.grants.size(); ++g)
            for_each_entry(file_.grants[g], file_.settings, [&](const AgendaEntry& entry) {
                if (with_done_ || !entry.done)
                    refs_.push_back({packed(entry.day, entry.kind), ranks[g], g,
                        static_cast<std::uint32_t>(entry.index), entry.kind, entry.done});
            });
    }

    /// The ids' texts differ only in the two UUIDs here, whose bytes sort as their hexadecimal texts do. Records that
    /// share even those (a damaged file) keep the file's order.
    bool before(const Ref& a, const Ref& b) const
    {
        if (a.day_and_rank != b.day_and_rank)
            return a.day_and_rank < b.day_and_rank;
        if (a.title_rank != b.title_rank)
            return a.title_rank < b.title_rank;
        const Grant& grant_a = file_.grants[a.grant];
        const Grant& grant_b = file_.grants[b.grant];
        return std::tuple(grant_a.id, record_id(grant_a, a.kind, a.record), a.grant, a.record)
            < std::tuple(grant_b.id, record_id(grant_b, b.kind, b.record), b.grant, b.record);
    }

    AgendaItem item(const Ref& ref) const
    {
        const Grant& grant = file_.grants[ref.grant];
        AgendaItem item;
        item.kind = ref.kind;
        item.day = unpacked_day(ref.day_and_rank);
        item.grantID = grant.id;
        item.itemID = record_id(grant, ref.kind, ref.record);
        item.id = item_id(ref.kind, grant.id, item.itemID);
        item.detail = detail(grant, ref.kind, ref.record);
        item.grantTitle = grant.title;
        item.funderName = funder_name(grant);
        item.amount = amount(grant, ref.kind, ref.record);
        item.done = ref.done;
        return item;
    }

    std::string funder_name(const Grant& grant) const
    {
        const auto found = grant.funderID ? funder_names_.find(*grant.funderID) : funder_names_.end();
        return found == funder_names_.end() ? std::string() : *found->second;
    }

    const GrantFile& file_;
    bool with_done_;
    std::vector<Ref> refs_;
    std::unordered_map<Uuid, const std::string*> funder_names_;
};

} // namespace

std::vector<AgendaItem> agenda(const GrantFile& file)
{
    return Agenda(file, true).items();
}

std::vector<AgendaItem> open_agenda(const GrantFile& file)
{
    return Agenda(file, false).items();
}

bool comes_before(const AgendaItem& a, const AgendaItem& b)
{
    return std::tuple(a.day, rank(a.kind), std::string_view(a.grantTitle), std::string_view(a.id))
        < std::tuple(b.day, rank(b.kind), std::string_view(b.grantTitle), std::string_view(b.id));
}

Bucket bucket(const Day& day, const Day& today)
{
    const std::int64_t days = days_between(today, day);
    if (days < 0)
        return Bucket::overdue;
    if (days <= 7)
        return Bucket::thisWeek;
    if (days <= 30)
        return Bucket::next30;
    return days <= 90 ? Bucket::next90 : Bucket::later;
}

} // namespace quillfern::grants
