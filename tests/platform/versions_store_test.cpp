#include "platform/versions_store.h"
#include "tests/platform/small_package.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <thread>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::SizeIs;

/// The store is on another disk than the documents.
class TwoDisks : public SystemCalls {
public:
    explicit TwoDisks(std::string store) : store_(std::move(store)) { }
    int rename_at(int from, const char* name, int to, const char* as, unsigned flags) override
    {
        const bool there = std::string_view(as).starts_with(store_);
        if (there && !std::string_view(name).starts_with(store_))
            return errno = EXDEV, -1;
        return SystemCalls::rename_at(from, name, to, as, flags);
    }

private:
    std::string store_;
};

ino_t inode(const std::string& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

class VersionsStoreTest : public testing::Test {
protected:
    /// Saves the text; the state before it goes to the store.
    SaveOutcome save(const char* text, VersionsStore& to)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(2)); // versions are told apart by their times
        read.contents.mainText = text;
        const auto saved = save_package(*read.place, request(read.contents, &to), lock);
        EXPECT_TRUE(saved.ok());
        return saved ? *saved : SaveOutcome{};
    }

    std::vector<std::string> texts(const std::string& document) const
    {
        std::vector<std::string> found;
        for (const Version& version : store.versions_of(document))
            found.push_back(get(version.path + "/Main.json"));
        return found;
    }

    ScratchFolder scratch;
    std::string folder = scratch / "versions";
    VersionsStore store{folder, "Main.json"};
    std::string path = make_small_package(scratch);
    PackageRead read = opened(path);
    DocumentLock lock = locked(scratch, path);
};

TEST_F(VersionsStoreTest, Each_save_adds_the_state_before_it_the_newest_first)
{
    EXPECT_THAT(store.versions_of(path), SizeIs(0));
    save("two", store);
    save("three", store);
    EXPECT_THAT(texts(path), ElementsAre("two", "one"));
    fs::create_symlink(path, scratch / "link");
    EXPECT_THAT(texts(scratch / "link"), ElementsAre("two", "one")) << "it is the same document";
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms(0700));
}

TEST_F(VersionsStoreTest, The_history_follows_the_document_and_joins_the_one_that_is_there)
{
    const std::string other = scratch / "Larder.quillfern";
    save("two", store);
    const Blob dropped = read.contents.attachments.at("a");
    read.contents.attachments.erase("a");
    save("three", store);
    fs::rename(path, other);
    store.follow(path, other);
    EXPECT_THAT(texts(path), SizeIs(0));
    EXPECT_THAT(texts(other), ElementsAre("two", "one"));
    EXPECT_EQ(**dropped.read(), "bytes of a") << "an undo step reads from the state that has moved";
    EXPECT_THAT(entries(folder), SizeIs(1));

    make_small_package(scratch);
    read = opened(path);
    save("four", store);
    fs::remove_all(other);
    fs::rename(path, other);
    store.follow(path, other);
    EXPECT_THAT(texts(other), SizeIs(3));
}

TEST_F(VersionsStoreTest, Pruning_takes_old_states_and_what_crashes_have_left_but_nothing_that_is_read)
{
    save("two", store);
    const Blob dropped = read.contents.attachments.at("a");
    read.contents.attachments.erase("a");
    for (const char* text : {"three", "four", "five"})
        save(text, store);
    const std::string history = folder + '/' + entries(folder).front();
    put(history + "/.~copy-00000000~/Main.json", "half a copy");
    put(history + "/Pantry.quillfern-20260307T140322125Z-0f3a99c1/Attachments/a", "half removed");
    chmod((history + "/Pantry.quillfern-20260307T140322125Z-0f3a99c1/Attachments").c_str(), 0500);
    const PruningRule one{.recent = 1, .days = 0, .weeks = 0};
    store.prune(path, {}, one);
    EXPECT_THAT(texts(path), ElementsAre("four", "two")) << "the newest, and the one that is read";
    EXPECT_THAT(entries(history), SizeIs(3));
    EXPECT_EQ(**dropped.read(), "bytes of a");

    const auto version = opened(store.versions_of(path).back().path);
    EXPECT_TRUE(store.protect(version.place->tree));
    const auto gone = opened(store.versions_of(path).front().path);
    fs::remove_all(gone.place->tree->path());
    EXPECT_FALSE(store.protect(gone.place->tree)) << "pruned between reading and protecting";
}

TEST_F(VersionsStoreTest, Only_what_pruning_would_free_counts)
{
    const std::string big(1000, 'x');
    put(path + "/Attachments/a", big);
    read = opened(path);
    for (const char* text : {"two", "three", "four"})
        save(text, store);
    const PruningRule little{.bytes = 500};
    store.prune(path, {}, little);
    EXPECT_THAT(texts(path), SizeIs(3)) << "the attachment is the document's own file";
    read.contents.attachments.erase("a");
    save("five", store);
    store.prune(path, {}, little);
    EXPECT_THAT(texts(path), ElementsAre("four"));
}

TEST_F(VersionsStoreTest, On_another_disk_attachments_are_copied_once)
{
    TwoDisks disks(folder);
    VersionsStore there(folder, "Main.json", disks);
    put(path + "/.git/config", "a folder of someone's");
    fs::create_symlink("nowhere", path + "/link");
    read = opened(path);
    save("two", there);
    const Blob dropped = read.contents.attachments.at("a");
    read.contents.attachments.erase("a");
    read.contents.attachments.emplace("c", Blob(std::string("bytes of c")));
    save("three", there);
    read.contents.attachments.erase("b");
    put(path + "/Attachments/b", "other bytes");
    read = opened(path);
    save("four", there);
    const auto kept = there.versions_of(path);
    ASSERT_THAT(texts(path), ElementsAre("three", "two", "one"));
    EXPECT_EQ(get(kept[2].path + "/.git/config"), "a folder of someone's");
    EXPECT_EQ(fs::read_symlink(kept[2].path + "/link"), "nowhere");
    EXPECT_EQ(inode(kept[1].path + "/Attachments/b"), inode(kept[2].path + "/Attachments/b"));
    EXPECT_NE(inode(kept[0].path + "/Attachments/b"), inode(kept[1].path + "/Attachments/b"));
    EXPECT_EQ(get(kept[0].path + "/Attachments/b"), "other bytes");
    EXPECT_EQ(get(kept[0].path + "/Attachments/c"), "bytes of c");
    EXPECT_EQ(**dropped.read(), "bytes of a");
    EXPECT_THAT(entries(scratch.path()), ElementsAre("Pantry.quillfern", "locks", "versions"));
}

TEST_F(VersionsStoreTest, Long_names_and_odd_ones_have_a_history_too)
{
    for (const std::string& name : {std::string(245, 'n') + ".quillfern", std::string("P\xFFntry \n.quillfern")}) {
        const std::string odd = scratch / name;
        fs::rename(path, odd);
        read = opened(odd);
        save("two", store);
        EXPECT_THAT(texts(odd), SizeIs(1));
        fs::rename(odd, path);
    }
}

TEST_F(VersionsStoreTest, What_the_store_cannot_take_stays_beside_the_document)
{
    put(folder, "a file in the store's place");
    const SaveOutcome outcome = save("two", store);
    EXPECT_EQ(outcome.displacedError, ENOTDIR);
    EXPECT_EQ(get(path + "/Main.json"), "two");
    EXPECT_THAT(entries(scratch.path()), SizeIs(4));
    EXPECT_EQ(save("three", store).displacedError, ENOTDIR);
    EXPECT_THAT(entries(scratch.path()), SizeIs(4)) << "the newest is enough, or the disk would fill";
    fs::remove(folder);
    EXPECT_EQ(save("four", store).displacedError, 0);
    EXPECT_THAT(texts(path), ElementsAre("three", "two"));
}

TEST_F(VersionsStoreTest, What_holds_more_than_was_read_stays_until_the_store_takes_it)
{
    put(folder, "a file in the store's place");
    read.place->holdsMore = true;
    for (const char* text : {"two", "three", "four"})
        save(text, store);
    EXPECT_THAT(entries(scratch.path()), SizeIs(5)) << "the first state, and the newest";
    fs::remove(folder);
    save("five", store);
    EXPECT_THAT(texts(path), ElementsAre("four", "three", "one"));
}

} // namespace
} // namespace quillfern::platform
