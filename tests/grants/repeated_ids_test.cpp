#include "grants/repeated_ids.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

template <class Record>
std::vector<Record> with_ids(std::initializer_list<const char*> ids)
{
    std::vector<Record> records;
    for (const char* id : ids)
        records.emplace_back().id = *Uuid::parse(std::string("00000000-0000-4000-8000-00000000000") + id);
    return records;
}

TEST(RepeatedIds, AreNamedInEveryListOfAGrantAndAmongGrants)
{
    auto grants = with_ids<Grant>({"1", "2", "1"});
    grants[1].payments = with_ids<Payment>({"1", "1", "3", "1"});
    grants[1].reports = with_ids<ReportPeriod>({"1", "2", "2"});
    grants[2].milestones = with_ids<Milestone>({"1", "1"});
    grants[2].attachments = with_ids<Attachment>({"4", "4"});
    GrantFile file;
    file.grants.assign(grants.begin(), grants.end());
    EXPECT_THAT(repeated_ids(file),
        testing::ElementsAre("grants[2].id: grants[0] has the same id",
            "grants[1].payments[1].id: grants[1].payments[0] has the same id",
            "grants[1].payments[3].id: grants[1].payments[0] has the same id",
            "grants[1].reports[2].id: grants[1].reports[1] has the same id",
            "grants[2].attachments[1].id: grants[2].attachments[0] has the same id",
            "grants[2].milestones[1].id: grants[2].milestones[0] has the same id"));
}

TEST(RepeatedIds, MayBeTheSameInDifferentListsAndGrants)
{
    auto grants = with_ids<Grant>({"1", "2"});
    for (Grant& grant : grants) {
        grant.payments = with_ids<Payment>({"1"});
        grant.reports = with_ids<ReportPeriod>({"1"});
    }
    GrantFile file;
    file.grants.assign(grants.begin(), grants.end());
    EXPECT_THAT(repeated_ids(file), testing::IsEmpty());
}

} // namespace
} // namespace quillfern::grants
