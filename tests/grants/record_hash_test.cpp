#include "base/record_hash.h"
#include "board/record_fields.h"
#include "grants/record_fields.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <vector>

namespace quillfern::grants {
namespace {

TEST(RecordHash, EqualRecordsHashAlikeAndEachFieldCounts)
{
    const std::vector<std::function<void(GrantFile&)>> edits{
        [](GrantFile&) {},
        [](GrantFile& file) { file.org.mission = "Food for all"; },
        [](GrantFile& file) { file.settings.defaultReportPlan.dueDays = 31; },
        [](GrantFile& file) {
            file.calendarAdded = std::map<std::string, Day>{{"loi-1", {2026, 1, 2}}};
        },
        [](GrantFile& file) { file.board = file.board.with([](board::Board& board) { board.seats = 0; }); },
        [](GrantFile& file) { file.grants = {Grant()}; },
        [](GrantFile& file) {
            file.grants = {Grant(), Grant()};
        },
        [](GrantFile& file) {
            Grant grant;
            grant.ask = Money{0};
            file.grants = {grant};
        },
        [](GrantFile& file) {
            Grant grant;
            grant.awarded = Money{0};
            file.grants = {grant};
        },
        [](GrantFile& file) {
            Grant grant;
            grant.milestones = {{{}, "", OffsetFrom{}, false}};
            file.grants = {grant};
        },
    };
    std::set<std::size_t> hashes;
    for (const auto& edit : edits) {
        GrantFile one, other;
        edit(one);
        edit(other);
        EXPECT_EQ(hash_of(one), hash_of(other));
        hashes.insert(hash_of(one));
    }
    EXPECT_EQ(hashes.size(), edits.size());
}

} // namespace
} // namespace quillfern::grants
