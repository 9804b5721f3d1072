#include "grants/agenda_actions.h"

#include "grants/sample_organization.h"

#include <gmock/gmock.h>

#include <set>

namespace quillfern::grants {
namespace {

const Day today{2026, 9, 10};
constexpr Instant now{1'789'000'000'000};

std::set<std::string> open_ids(const GrantFile& file)
{
    std::set<std::string> ids;
    for (const AgendaItem& item : open_agenda(file))
        ids.insert(item.id);
    return ids;
}

/// The ids that are open in `before` and not in `after`; nothing may have become open.
std::set<std::string> settled(const GrantFile& before, const GrantFile& after)
{
    std::set<std::string> ids = open_ids(before);
    for (const std::string& id : open_ids(after))
        EXPECT_EQ(ids.erase(id), 1U) << id << " has come up";
    return ids;
}

/// A report that is sent needs no draft any more.
std::string draft_of(const AgendaItem& report)
{
    return "reportDraft" + report.id.substr(std::string_view("report").size());
}

TEST(AgendaActions, EachSettlesItsItemOnceAndNothingElse)
{
    const GrantFile file = sample_organization(today, Lang::en).file;
    std::set<AgendaKind> kinds;
    for (const AgendaItem& item : open_agenda(file)) {
        kinds.insert(item.kind);
        const GrantFile after = perform(file, item, today, now);
        if (item.kind == AgendaKind::decision) {
            EXPECT_EQ(action_of(item), std::nullopt);
            EXPECT_EQ(after, file);
            continue;
        }
        ASSERT_TRUE(action_of(item));
        std::set<std::string> expected{item.id};
        if (item.kind == AgendaKind::report && open_ids(file).contains(draft_of(item)))
            expected.insert(draft_of(item));
        EXPECT_EQ(settled(file, after), expected);
        EXPECT_EQ(agenda(after).size(), agenda(file).size()) << "a done item stays on record";
        EXPECT_EQ(perform(after, item, {2026, 9, 11}, now), after) << "a second click on " << item.id;
    }
    EXPECT_EQ(kinds.size(), 7U) << "the sample has items of every kind";
}

/// A request with one of each, everything still to do.
Grant example_grant(Stage stage)
{
    Grant grant;
    grant.id.bytes[15] = 1;
    grant.stage = stage;
    grant.loiDue = Day{2026, 9, 1};
    grant.applicationDue = Day{2026, 10, 1};
    ReportPeriod report;
    report.due = {2027, 1, 1};
    grant.reports = {report};
    Payment payment;
    payment.expected = {2026, 12, 1};
    payment.amount = Money{250000};
    grant.payments = {payment};
    return grant;
}

Grant after(const Grant& grant, AgendaKind kind)
{
    GrantFile file;
    file.grants = {grant};
    for (const AgendaItem& item : open_agenda(file))
        if (item.kind == kind)
            return perform(file, item, today, now).grants[0];
    ADD_FAILURE() << "no item of kind " << static_cast<int>(kind);
    return grant;
}

TEST(AgendaActions, ALetterOrAnApplicationThatIsSentBringsTheRequestForward)
{
    const struct {
        Stage from;
        AgendaKind sent;
        Stage to;
    } cases[] = {
        {Stage::prospect, AgendaKind::loi, Stage::loi},
        {Stage::loi, AgendaKind::loi, Stage::loi},
        {Stage::prospect, AgendaKind::application, Stage::submitted},
        {Stage::drafting, AgendaKind::application, Stage::submitted},
    };
    for (const auto& [from, sent, to] : cases)
        EXPECT_EQ(after(example_grant(from), sent).stage, to);
    const Grant letter = after(example_grant(Stage::prospect), AgendaKind::loi);
    EXPECT_EQ(letter.loiSubmittedOn, today);
    EXPECT_EQ(letter.submittedOn, std::nullopt);
    EXPECT_EQ(letter.modified, now);
    EXPECT_EQ(after(example_grant(Stage::loi), AgendaKind::application).submittedOn, today);
}

TEST(AgendaActions, OtherRecordsLeaveTheStageAlone)
{
    Grant grant = example_grant(Stage::awarded);
    const Grant sent = after(grant, AgendaKind::report);
    EXPECT_EQ(sent.reports[0].status, ReportStatus::submitted);
    EXPECT_EQ(sent.reports[0].submittedOn, today);
    EXPECT_EQ(sent.stage, Stage::awarded);
    EXPECT_EQ(after(grant, AgendaKind::reportDraft).reports[0].status, ReportStatus::drafting);

    const Grant paid = after(grant, AgendaKind::payment);
    EXPECT_EQ(paid.payments[0].receivedOn, today);
    EXPECT_EQ(received_amount(paid.payments[0]), Money{250000});
    grant.payments[0].receivedAmount = Money{200000};
    EXPECT_EQ(received_amount(after(grant, AgendaKind::payment).payments[0]), Money{200000});
}

TEST(AgendaActions, AnItemThatIsGoneLeavesTheFileAsItIs)
{
    GrantFile file;
    file.grants = {example_grant(Stage::awarded)};
    const std::vector<AgendaItem> items = open_agenda(file);
    file.grants[0] = file.grants[0].with([](Grant& grant) {
        grant.payments.clear();
        grant.reports[0].id.bytes[0] = 9;
    });
    const GrantFile empty;
    for (const AgendaItem& item : items) {
        EXPECT_EQ(perform(file, item, today, now), file);
        EXPECT_EQ(perform(empty, item, today, now), empty);
    }
}

} // namespace
} // namespace quillfern::grants
