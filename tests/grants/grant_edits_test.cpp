#include "grants/grant_edits.h"

#include "grants/attachments.h"
#include "grants/sample_organization.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quillfern::grants {
namespace {

/// Where in the sample the first grant with files stands.
std::size_t grant_with_files(const OrgPackage& package)
{
    const auto& grants = package.file.grants;
    const auto found = std::find_if(
        grants.begin(), grants.end(), [](const Shared<Grant>& grant) { return !grant->attachments.empty(); });
    return static_cast<std::size_t>(found - grants.begin());
}

TEST(GrantEdits, ARemovedGrantTakesItsFilesAlongAndTheOldValueStillHasThem)
{
    const OrgPackage before = sample_organization({2026, 9, 10}, Lang::en);
    const OrgPackage old = before;
    const std::size_t place = grant_with_files(before);
    const Grant grant = before.file.grants[place];
    const OrgPackage after = without_grant(before, grant.id);

    EXPECT_EQ(after.attachments->size(), before.attachments->size() - grant.attachments.size());
    for (const Attachment& attachment : grant.attachments) {
        EXPECT_FALSE(read_attachment(after, attachment.storedName));
        const auto bytes = read_attachment(old, attachment.storedName);
        ASSERT_TRUE(bytes);
        EXPECT_EQ(static_cast<std::int64_t>((*bytes)->size()), attachment.byteCount);
    }
    OrgPackage rest = after;
    rest.attachments = before.attachments;
    rest.file.grants.insert(rest.file.grants.begin() + static_cast<std::ptrdiff_t>(place), grant);
    EXPECT_EQ(rest, old) << "everything else is as it was, in its order";
}

TEST(GrantEdits, BytesThatAnotherGrantOrNobodyNamesStay)
{
    OrgPackage package = sample_organization({2026, 9, 10}, Lang::en);
    const std::size_t place = grant_with_files(package);
    const Grant grant = package.file.grants[place];
    Shared<Grant>& other = package.file.grants[place == 0 ? 1 : 0];
    other = other.with([&](Grant& each) { each.attachments.push_back(grant.attachments[0]); });
    package.attachments = package.attachments.with(
        [](AttachmentBytes& files) { files.insert_or_assign("unnamed.txt", platform::Blob(std::string("kept"))); });

    const OrgPackage after = without_grant(package, grant.id);
    EXPECT_TRUE(read_attachment(after, grant.attachments[0].storedName));
    EXPECT_TRUE(read_attachment(after, "unnamed.txt"));
    EXPECT_EQ(without_grant(package, Uuid()), package) << "no such grant";
}

} // namespace
} // namespace quillfern::grants
