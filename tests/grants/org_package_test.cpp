#include "grants/attachments.h"
#include "grants/package_messages.h"
#include "grants/sample_organization.h"
#include "platform/random_uuid.h"
#include "tests/platform/scratch_folder.h"

#include <gmock/gmock.h>

namespace quillfern::grants {
namespace {

using platform::DocumentLock;
using platform::Existing;
using platform::Ownership;
using platform::ScratchFolder;
using testing::HasSubstr;
using testing::MatchesRegex;
using Reason = PackageError::Reason;

FreshValues fresh()
{
    return {platform::random_uuid, *Instant::parse("2026-03-07T10:00:00Z")};
}

class OrgPackages : public testing::Test {
protected:
    DocumentLock lock(const std::string& path)
    {
        auto held = DocumentLock::acquire_in(scratch.path(), path);
        if (!held)
            throw std::runtime_error("no lock");
        return std::move(*held);
    }

    PackageError refusal(const std::string& json)
    {
        platform::put(scratch / "Bad.quillfern/Quillfern.json", json);
        const auto read = read_package(scratch / "Bad.quillfern");
        EXPECT_FALSE(read.ok()) << json;
        EXPECT_EQ(platform::get(scratch / "Bad.quillfern/Quillfern.json"), json);
        return read.error();
    }

    ScratchFolder scratch;
};

TEST_F(OrgPackages, The_sample_comes_back_from_the_disk_as_it_was)
{
    const SampleContent sample = sample_content(*Day::parse("2026-09-10"), Lang::es);
    OrgPackage package{.file = sample.file, .attachments = {}, .logo = platform::Blob(std::string(sample.logo))};
    package.attachments = package.attachments.with([&](AttachmentBytes& files) {
        for (const auto& [name, bytes] : sample.attachments)
            files.emplace(name, platform::Blob(bytes));
    });
    const std::string path = scratch / "Linden.quillfern";
    const DocumentLock held = lock(path);
    ASSERT_TRUE(write_package_as(package, path, Existing::refuse, Ownership::copy, held).ok());

    auto opened = read_package(path, &held);
    ASSERT_TRUE(opened.ok());
    EXPECT_TRUE(opened->notes.empty());
    EXPECT_EQ(opened->package.file, package.file);
    EXPECT_EQ(**opened->package.logo->read(), sample.logo);
    ASSERT_EQ(opened->package.attachments->size(), sample.attachments.size());
    for (const auto& [name, bytes] : sample.attachments)
        EXPECT_EQ(**read_attachment(opened->package, name), bytes);

    OrgPackage edited = opened->package;
    edited.file.org.name = "Otra";
    ASSERT_TRUE(write_package(edited, *opened->place, held).ok());
    EXPECT_EQ(read_package(path)->package.file.org.name, "Otra");
}

TEST_F(OrgPackages, Each_refusal_has_its_reason_and_touches_nothing)
{
    platform::put(scratch / "plain.quillfern", "text");
    std::filesystem::create_directory(scratch / "empty.quillfern");
    EXPECT_EQ(read_package(scratch / "plain.quillfern").error().reason, Reason::notAPackage);
    EXPECT_EQ(read_package(scratch / "nothing.quillfern").error().reason, Reason::notAPackage);
    EXPECT_EQ(read_package(scratch / "empty.quillfern").error().reason, Reason::missingData);
    EXPECT_EQ(refusal("{").reason, Reason::unreadable);
    EXPECT_THAT(refusal(R"({"grants": [{"ask": true}]})").text, HasSubstr("grants[0].ask"));
    EXPECT_EQ(refusal(R"({"formatVersion": 3})").reason, Reason::newerFormat);
}

TEST_F(OrgPackages, Records_that_would_not_come_back_are_never_written)
{
    OrgPackage package;
    const std::string path = scratch / "New.quillfern";
    package.file.org.name = "not UTF-8: \xff";
    const auto written = write_package_as(package, path, Existing::refuse, Ownership::document, lock(path));
    ASSERT_FALSE(written.ok());
    EXPECT_EQ(written.error().problem, platform::SaveProblem::badContents);
    EXPECT_FALSE(std::filesystem::exists(path));
}

OrgPackage with_one_grant()
{
    OrgPackage package;
    Grant grant;
    grant.id = *Uuid::parse("00000000-0000-0000-0000-000000000001");
    package.file.grants.emplace_back(std::move(grant));
    return package;
}

TEST(Attachments, Are_stored_under_a_fresh_name_with_the_extension_in_lower_case)
{
    const OrgPackage package = with_one_grant();
    const std::string uuid = "[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}";
    const std::pair<std::string, std::string> cases[] = {
        {"Award Letter.PDF", "\\.pdf"},
        {"README", ""},
        {".bashrc", ""},
        {"ends with a dot.", ""},
        {"archive.tar.GZ", "\\.gz"},
        {"INFORME.ÉS", "\\.és"},
        {"much." + std::string(300, 'x'), ""},
    };
    for (const auto& [name, ending] : cases) {
        const auto added =
            add_attachment(package, package.file.grants[0]->id, "bytes", name, AttachmentKind::awardLetter, fresh());
        ASSERT_TRUE(added.ok()) << name;
        const Attachment& record = added->attachment;
        EXPECT_THAT(record.storedName, MatchesRegex(uuid + ending)) << name;
        EXPECT_EQ(record.originalName, name);
        EXPECT_EQ(record.byteCount, 5);
        EXPECT_EQ(record.added, fresh().now);
        EXPECT_EQ(added->package.file.grants[0]->attachments, std::vector<Attachment>{record});
        EXPECT_EQ(**read_attachment(added->package, record.storedName), "bytes");

        const OrgPackage removed = remove_attachment(added->package, package.file.grants[0]->id, record.id);
        EXPECT_EQ(removed, package);
        EXPECT_FALSE(read_attachment(removed, record.storedName).ok());
    }
}

TEST(Attachments, Are_refused_when_empty_too_big_or_for_no_grant)
{
    const OrgPackage package = with_one_grant();
    const auto add = [&](std::size_t size, const Uuid& grant) {
        return add_attachment(package, grant, std::string(size, 'x'), "a", AttachmentKind::other, fresh());
    };
    const Uuid grant = package.file.grants[0]->id;
    EXPECT_EQ(add(0, grant).error(), AttachmentError::empty);
    EXPECT_EQ(add(104'857'601, grant).error(), AttachmentError::tooBig);
    EXPECT_TRUE(add(104'857'600, grant).ok());
    EXPECT_EQ(add(1, platform::random_uuid()).error(), AttachmentError::noSuchGrant);
}

TEST(Attachments, The_bytes_stay_while_another_record_names_them)
{
    auto added = add_attachment(
        with_one_grant(), with_one_grant().file.grants[0]->id, "bytes", "a.txt", AttachmentKind::other, fresh());
    OrgPackage& package = added->package;
    Attachment twin = added->attachment;
    twin.id = platform::random_uuid();
    package.file.grants[0] = package.file.grants[0].with([&](Grant& grant) { grant.attachments.push_back(twin); });
    const Uuid grant = package.file.grants[0]->id;
    const OrgPackage once = remove_attachment(package, grant, twin.id);
    EXPECT_TRUE(read_attachment(once, twin.storedName).ok());
    EXPECT_FALSE(read_attachment(remove_attachment(once, grant, added->attachment.id), twin.storedName).ok());
}

TEST(PackageMessages, Have_the_words_that_the_help_describes)
{
    EXPECT_EQ(package_message({Reason::missingData, ""}, "Pantry.quillfern"),
        (PackageMessage{"This file couldn’t be read.",
            "Pantry.quillfern is missing or damaged. If you have a backup or a Time Machine copy, open that one."}));
    EXPECT_EQ(package_message({Reason::newerFormat, ""}, "x").text,
        "Update the app (Quillfern › Check for Updates…) and open it again. Nothing in the file was changed.");
    EXPECT_EQ(attachment_message(AttachmentError::empty, "a.txt").text, "“a.txt” couldn’t be read");
    EXPECT_EQ(
        attachment_missing("a.txt").text, "“a.txt” isn’t in the document any more. Remove it and attach it again.");
}

} // namespace
} // namespace quillfern::grants
