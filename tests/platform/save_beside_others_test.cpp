#include "tests/platform/directory_save_fixture.h"

#include <functional>
#include <gmock/gmock.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class DirectorySaveBesideOthers : public DirectorySave { };

TEST_F(DirectorySaveBesideOthers, Refuses_when_someone_else_has_written_the_document)
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

/// The same bytes put back by a synchronised folder or a backup are no change.
TEST_F(DirectorySaveBesideOthers, Knows_a_copy_of_what_it_opened)
{
    fs::copy(path, scratch / "copy", fs::copy_options::recursive);
    for (const char* name : {"Attachments/a", "Attachments/b", "Logo.png"})
        fs::last_write_time(scratch / "copy" + '/' + name, fs::last_write_time(path + '/' + name));
    fs::remove_all(path);
    fs::rename(scratch / "copy", path);
    EXPECT_TRUE(save().ok());
}

TEST_F(DirectorySaveBesideOthers, Attachments_that_arrived_are_carried_over_until_the_document_takes_them_in)
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

TEST_F(DirectorySaveBesideOthers, What_others_write_during_the_save_is_kept_as_a_conflict)
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

TEST_F(DirectorySaveBesideOthers, What_arrives_during_the_save_is_carried_over)
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

TEST_F(DirectorySaveBesideOthers, Entries_of_others_stay_in_the_package_when_nobody_keeps_displaced_trees)
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

} // namespace
} // namespace quillfern::platform
