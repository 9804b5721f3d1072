#include "tests/platform/directory_save_fixture.h"

#include <gmock/gmock.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(DirectorySave, Writes_the_new_state_and_leaves_nothing_behind)
{
    read.contents.mainText = "two";
    read.contents.attachments.erase("a");
    read.contents.attachments.emplace("c", Blob(std::string("bytes of c")));
    read.contents.logo.reset();
    const auto saved = save();
    ASSERT_TRUE(saved.ok());
    EXPECT_THAT(saved->conflict, IsEmpty());
    EXPECT_EQ(get(path + "/Main.json"), "two");
    EXPECT_THAT(entries(path), ElementsAre("Attachments", "Main.json"));
    EXPECT_THAT(entries(path + "/Attachments"), ElementsAre("b", "c"));
    EXPECT_THAT(entries(scratch.path()), ElementsAre("Pantry.quillfern", "locks"));
    EXPECT_TRUE(std::holds_alternative<StoredFile>(read.contents.attachments.at("c").source())) << "memory is freed";

    read.contents.mainText = "three";
    EXPECT_TRUE(save().ok()) << "what was saved is known as our own";
}

TEST_F(DirectorySave, Unchanged_attachments_are_taken_over_unread)
{
    constexpr std::int64_t gigabyte = 1'073'741'824; // sparse
    ASSERT_EQ(truncate((path + "/Attachments/a").c_str(), gigabyte), 0);
    read = opened(path);
    const ino_t before = inode(path + "/Attachments/a");

    class CountingCalls : public SystemCalls {
    public:
        ssize_t read(int file, void* bytes, std::size_t count) override
        {
            const ssize_t got = SystemCalls::read(file, bytes, count);
            total += got;
            return got;
        }
        int clone(int, int) override { return errno = EOPNOTSUPP, -1; }
        ssize_t total = 0;
    } calls;
    ASSERT_TRUE(save(calls).ok());
    EXPECT_EQ(inode(path + "/Attachments/a"), before);
    EXPECT_EQ(calls.total, 0);
}

TEST_F(DirectorySave, Copies_where_the_disk_cannot_link_and_keeps_the_time)
{
    class NoLinks : public SystemCalls {
    public:
        int link_at(int, const char*, int, const char*) override { return errno = EPERM, -1; }
    } calls;
    const auto time = fs::file_time_type::clock::now() - std::chrono::hours(1000);
    fs::last_write_time(path + "/Attachments/a", time);
    chmod((path + "/Attachments/a").c_str(), 0640);
    read = opened(path);
    const ino_t before = inode(path + "/Attachments/a");
    ASSERT_TRUE(save(calls).ok());
    EXPECT_NE(inode(path + "/Attachments/a"), before);
    EXPECT_EQ(fs::last_write_time(path + "/Attachments/a"), time);
    EXPECT_EQ(fs::status(path + "/Attachments/a").permissions(), fs::perms(0640));
    EXPECT_EQ(**read.contents.attachments.at("a").read(), "bytes of a");
    EXPECT_TRUE(save().ok());
}

TEST_F(DirectorySave, Takes_over_modes_and_attributes)
{
    chmod(path.c_str(), 0750);
    chmod((path + "/Main.json").c_str(), 0604);
    const bool attributes = setxattr(path.c_str(), "user.colour", "green", 5, 0) == 0;
    ASSERT_TRUE(save().ok());
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0750));
    EXPECT_EQ(fs::status(path + "/Main.json").permissions(), fs::perms(0604));
    char colour[8] = {};
    EXPECT_EQ(getxattr(path.c_str(), "user.colour", colour, sizeof colour), attributes ? 5 : -1);
}

TEST_F(DirectorySave, Refuses_what_it_cannot_or_must_not_replace)
{
    fs::rename(path, scratch / "away");
    expect_refused(SaveProblem::gone);
    put(path, "a plain file");
    expect_refused(SaveProblem::notAPackage);
    fs::remove(path);
    put(path + "/holiday.jpg", "a folder of someone's");
    expect_refused(SaveProblem::notAPackage);
    fs::remove_all(path);
    fs::create_symlink(scratch / "away", path);
    expect_refused(SaveProblem::notAPackage);
    read.place->tree->set_path(scratch / "no/Pantry.quillfern");
    expect_refused(SaveProblem::noFolder);
}

TEST_F(DirectorySave, Refuses_contents_that_would_not_come_back)
{
    PackageContents good = read.contents;
    for (const char* name : {"", "..", "../x", "x/y", ".hidden"}) {
        read.contents = good;
        read.contents.attachments.emplace(name, Blob(std::string("x")));
        expect_refused(SaveProblem::badContents);
    }
    read.contents = good;
    read.contents.mainText = std::string(1001, ' ');
    expect_refused(SaveProblem::badContents);

    SaveRequest unreadable = request(good);
    unreadable.readsBack = [] { return false; };
    EXPECT_EQ(save_package(*read.place, unreadable, lock).error().problem, SaveProblem::badContents);
    EXPECT_THAT(entries(scratch.path()), ElementsAre("Pantry.quillfern", "locks"));
}

TEST_F(DirectorySave, Refuses_read_only_folders)
{
    class NoWrite : public SystemCalls {
    public:
        int may_write_at(int, const char*) override { return errno = EACCES, -1; }
    } package;
    EXPECT_EQ(save(package).error().problem, SaveProblem::readOnly);
    class NoFolder : public SystemCalls {
    public:
        int make_folder_at(int, const char*, mode_t) override { return errno = EROFS, -1; }
    } parent;
    EXPECT_EQ(save(parent).error().problem, SaveProblem::readOnly);
    if (geteuid() != 0) {
        chmod(path.c_str(), 0500);
        expect_refused(SaveProblem::readOnly);
        chmod(path.c_str(), 0700);
    }
    EXPECT_TRUE(save().ok());
}

TEST_F(DirectorySave, The_previous_state_goes_to_its_keeper_with_everything_in_it)
{
    fs::create_directory(scratch / "versions");
    TreesInFolder versions(scratch / "versions");
    put(path + "/notes.txt", "own");
    const Blob dropped = read.contents.attachments.at("a");
    read.contents.attachments.erase("a");
    const auto saved = save(system_calls(), &versions);
    ASSERT_TRUE(saved.ok());
    EXPECT_THAT(saved->displaced, StartsWith((scratch / "versions/Pantry.quillfern-20")));
    EXPECT_EQ(get(saved->displaced + "/Main.json"), "one");
    EXPECT_EQ(get(saved->displaced + "/notes.txt"), "own");
    EXPECT_EQ(**dropped.read(), "bytes of a") << "an undo step may want it";

    read.contents.attachments.emplace("a", dropped);
    EXPECT_TRUE(save(system_calls(), &versions).ok());
    EXPECT_EQ(get(path + "/Attachments/a"), "bytes of a");
}

TEST_F(DirectorySave, A_dropped_attachment_that_an_undo_step_holds_outlives_its_file)
{
    const Blob dropped = read.contents.attachments.at("a");
    read.contents.attachments.erase("a");
    ASSERT_TRUE(save().ok());
    EXPECT_EQ(**dropped.read(), "bytes of a");
}

TEST_F(DirectorySave, A_keeper_that_fails_loses_nothing_and_is_asked_again)
{
    TreesInFolder versions(scratch / "versions");
    const auto saved = save(system_calls(), &versions);
    ASSERT_TRUE(saved.ok());
    EXPECT_EQ(saved->displacedError, ENOENT);
    fs::create_directory(scratch / "versions");
    ASSERT_TRUE(save(system_calls(), &versions).ok());
    EXPECT_EQ(entries(scratch / "versions").size(), 2u);
}

TEST_F(DirectorySave, After_a_failed_last_flush_both_states_stay_and_the_next_save_writes_all_afresh)
{
    class FailingFlush : public SystemCalls {
    public:
        int rename_at(int from, const char* name, int to, const char* as, unsigned flags) override
        {
            exchanged = exchanged || flags == RENAME_EXCHANGE;
            return SystemCalls::rename_at(from, name, to, as, flags);
        }
        int sync(int file) override { return exchanged ? (errno = EIO, -1) : SystemCalls::sync(file); }
        bool exchanged = false;
    } failing;
    read.contents.mainText = "two";
    read.contents.attachments.emplace("c", Blob(std::string("bytes of c")));
    const Blob dropped = read.contents.attachments.at("b");
    read.contents.attachments.erase("b");
    const ino_t before = inode(path + "/Attachments/a");
    EXPECT_EQ(save(failing).error().problem, SaveProblem::notFlushed);
    EXPECT_EQ(get(path + "/Main.json"), "two");
    EXPECT_EQ(entries(scratch.path()).size(), 3u) << "the displaced tree is kept";
    EXPECT_EQ(**dropped.read(), "bytes of b");
    EXPECT_TRUE(std::holds_alternative<Shared<std::string>>(read.contents.attachments.at("c").source()));

    ASSERT_TRUE(save().ok());
    EXPECT_NE(inode(path + "/Attachments/a"), before) << "not linked to a file of the failed save";
    EXPECT_THAT(entries(scratch.path()), ElementsAre("Pantry.quillfern", "locks"));
    EXPECT_EQ(**dropped.read(), "bytes of b");
    EXPECT_EQ(get(path + "/Attachments/c"), "bytes of c");
}

TEST_F(DirectorySave, Works_in_two_steps_where_folders_cannot_be_exchanged)
{
    class NoFlags : public SystemCalls {
    public:
        int rename_at(int from, const char* name, int to, const char* as, unsigned flags) override
        {
            return flags ? (errno = EINVAL, -1) : SystemCalls::rename_at(from, name, to, as, flags);
        }
    } calls;
    put(scratch / ".~Pantry.quillfern.bak~/Main.json", "left by a crash");
    read.contents.mainText = "two";
    ASSERT_TRUE(save(calls).ok());
    EXPECT_EQ(get(path + "/Main.json"), "two");
    EXPECT_FALSE(fs::exists(scratch / ".~Pantry.quillfern.bak~"));
}

} // namespace
} // namespace quillfern::platform
