#include "tests/platform/directory_save_fixture.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;

class SaveAs : public DirectorySave {
protected:
    Result<NewPackage, SaveError> save_as(
        const std::string& to, Existing existing = Existing::refuse, Ownership ownership = Ownership::copy)
    {
        return save_package_as(to, request(read.contents), existing, ownership, lock);
    }
};

TEST_F(SaveAs, An_export_shares_no_file_with_the_document)
{
    ASSERT_TRUE(save_as(scratch / "Copy.quillfern").ok());
    EXPECT_NE(inode(scratch / "Copy.quillfern/Attachments/a"), inode(path + "/Attachments/a"));
    EXPECT_EQ(get(scratch / "Copy.quillfern/Attachments/a"), "bytes of a");
    fs::remove_all(scratch / "Copy.quillfern");
    EXPECT_TRUE(read.contents.attachments.at("a").read().ok());
}

TEST_F(SaveAs, A_document_that_moves_takes_its_attachments_along)
{
    auto moved = save_as(scratch / "New.quillfern", Existing::refuse, Ownership::document);
    ASSERT_TRUE(moved.ok());
    fs::remove_all(path);
    EXPECT_EQ(**read.contents.attachments.at("a").read(), "bytes of a");
    EXPECT_TRUE(save_package(*moved->place, request(read.contents), lock).ok());
}

TEST_F(SaveAs, Replaces_packages_when_told_to_and_nothing_else_ever)
{
    put(scratch / "plain", "text");
    fs::create_directory(scratch / "empty");
    put(scratch / "holiday/1.jpg", "picture");
    fs::create_symlink("nowhere", scratch / "dangling");
    put(scratch / "Other.quillfern/Main.json", "other");
    fs::create_symlink(scratch / "Other.quillfern", scratch / "shortcut");
    for (const char* name : {"plain", "empty", "holiday", "dangling", "Other.quillfern", "shortcut"})
        EXPECT_EQ(save_as(scratch / name).error().problem, SaveProblem::exists) << name;
    for (const char* name : {"plain", "empty", "holiday", "dangling"})
        EXPECT_EQ(save_as(scratch / name, Existing::replacePackage).error().problem, SaveProblem::notAPackage) << name;
    EXPECT_TRUE(save_as(scratch / "shortcut", Existing::replacePackage).ok());
    EXPECT_EQ(get(scratch / "Other.quillfern/Main.json"), "one");
    EXPECT_TRUE(fs::is_symlink(scratch / "shortcut"));
    EXPECT_EQ(save_as(scratch / "no/New.quillfern").error().problem, SaveProblem::noFolder);
    EXPECT_TRUE(save_as(path, Existing::replacePackage).ok()) << "even over the document itself";
    EXPECT_EQ(get(path + "/Attachments/a"), "bytes of a");
}

TEST_F(SaveAs, Names_may_be_as_long_as_the_disk_allows)
{
    std::string name;
    while (name.size() + 2 <= 255)
        name += "é";
    EXPECT_TRUE(save_as(scratch / name).ok());
    EXPECT_TRUE(save_as(scratch / name, Existing::replacePackage).ok());
}

} // namespace
} // namespace quillfern::platform
