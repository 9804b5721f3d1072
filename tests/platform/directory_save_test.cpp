#include "tests/platform/small_package.h"

#include <gmock/gmock.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

ino_t inode(const std::string& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

/// A small package, opened and locked.
class DirectorySave : public testing::Test {
protected:
    Result<SaveOutcome, SaveError> save(SystemCalls& calls = system_calls(), DisplacedTrees* displaced = nullptr)
    {
        return save_package(*read.place, request(read.contents, displaced), lock, calls);
    }

    /// Refused with this reason, and the folder looks as before.
    void expect_refused(SaveProblem problem)
    {
        const auto before = entries(scratch.path());
        const auto saved = save();
        ASSERT_FALSE(saved.ok());
        EXPECT_EQ(saved.error().problem, problem);
        EXPECT_EQ(entries(scratch.path()), before);
    }

    ScratchFolder scratch;
    std::string path = make_small_package(scratch);
    PackageRead read = opened(path);
    DocumentLock lock = locked(scratch, path);
};

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

TEST_F(DirectorySave, Refuses_when_someone_else_has_written_the_document)
{
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"main file", [&] { put(path + "/Main.json", "six"); }},
        {"attachment", [&] { put(path + "/Attachments/a", "others' bytes"); }},
        {"attachment removed", [&] { fs::remove(path + "/Attachments/a"); }},
        {"logo removed", [&] { fs::remove(path + "/Logo.png"); }},
        {"logo replaced", [&] { put(path + "/Logo.png", "others'"); }},
    };
    for (const auto& [what, change] : changes) {
        SCOPED_TRACE(what);
        fs::remove_all(path);
        make_small_package(scratch);
        read = opened(path);
        change();
        expect_refused(SaveProblem::changedOnDisk);
    }
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

/// The same bytes put back by a synchronised folder or a backup are no change.
TEST_F(DirectorySave, Knows_a_copy_of_what_it_opened)
{
    fs::copy(path, scratch / "copy", fs::copy_options::recursive);
    for (const char* name : {"Attachments/a", "Attachments/b", "Logo.png"})
        fs::last_write_time(scratch / "copy" + '/' + name, fs::last_write_time(path + '/' + name));
    fs::remove_all(path);
    fs::rename(scratch / "copy", path);
    EXPECT_TRUE(save().ok());
}

TEST_F(DirectorySave, Attachments_that_arrived_are_carried_over_until_the_document_takes_them_in)
{
    put(path + "/Attachments/new", "from another program");
    const auto saved = save();
    ASSERT_TRUE(saved.ok());
    EXPECT_THAT(saved->arrived, ElementsAre("new"));
    const auto again = save();
    ASSERT_TRUE(again.ok());
    EXPECT_THAT(again->arrived, IsEmpty());
    EXPECT_EQ(get(path + "/Attachments/new"), "from another program");
}

/// Does something just before the exchange, as another program may.
class BeforeExchange : public SystemCalls {
public:
    explicit BeforeExchange(std::function<void()> act) : act_(std::move(act)) { }
    int rename_at(int from, const char* name, int to, const char* as, unsigned flags) override
    {
        if (flags == RENAME_EXCHANGE)
            act_();
        return SystemCalls::rename_at(from, name, to, as, flags);
    }

private:
    std::function<void()> act_;
};

TEST_F(DirectorySave, What_others_write_during_the_save_is_kept_as_a_conflict)
{
    BeforeExchange calls([&] { put(path + "/Main.json", "someone else's"); });
    read.contents.mainText = "two";
    for (const char* name : {"Pantry (conflict, 2026-03-07).quillfern", "Pantry (conflict, 2026-03-07 2).quillfern"}) {
        const auto saved = save(calls);
        ASSERT_TRUE(saved.ok());
        EXPECT_EQ(saved->conflict, fs::canonical(scratch.path()) / name);
        EXPECT_EQ(get(saved->conflict + "/Main.json"), "someone else's");
        EXPECT_EQ(get(path + "/Main.json"), "two");
    }
}

TEST_F(DirectorySave, What_arrives_during_the_save_is_carried_over)
{
    BeforeExchange calls([&] {
        put(path + "/Attachments/late", "late");
        put(path + "/late.txt", "late");
    });
    const auto saved = save(calls);
    ASSERT_TRUE(saved.ok());
    EXPECT_THAT(saved->arrived, ElementsAre("late"));
    EXPECT_EQ(get(path + "/Attachments/late"), "late");
    EXPECT_EQ(get(path + "/late.txt"), "late");
}

TEST_F(DirectorySave, Entries_of_others_stay_in_the_package_when_nobody_keeps_displaced_trees)
{
    put(path + "/notes.txt", "own");
    put(path + "/.git/config", "own");
    fs::create_symlink("nowhere", path + "/Attachments/link");
    const auto saved = save();
    ASSERT_TRUE(saved.ok());
    EXPECT_THAT(saved->unknownEntries, ElementsAre(".git", "Attachments/link", "notes.txt"));
    EXPECT_EQ(get(path + "/notes.txt"), "own");
    EXPECT_EQ(get(path + "/.git/config"), "own");
    EXPECT_EQ(fs::read_symlink(path + "/Attachments/link"), "nowhere");
    EXPECT_THAT(entries(scratch.path()), ElementsAre("Pantry.quillfern", "locks"));
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
