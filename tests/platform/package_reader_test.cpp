#include "tests/platform/small_package.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Key;

PackageProblem problem(const std::string& path)
{
    const auto read = read_package_folder(path, small_layout);
    EXPECT_FALSE(read.ok()) << path;
    return read.error().problem;
}

TEST(PackageReader, Reads_the_main_file_and_looks_at_the_rest)
{
    const ScratchFolder scratch;
    const std::string path = make_small_package(scratch);
    put(path + "/Attachments/.DS_Store", "litter");
    put(path + "/Attachments/sub/c", "c");
    put(path + "/notes.txt", "the user's own");

    const PackageRead read = opened(path + "/");
    EXPECT_EQ(read.contents.mainText, "one");
    EXPECT_THAT(read.contents.attachments, ElementsAre(Key("a"), Key("b")));
    EXPECT_EQ(**read.contents.attachments.at("b").read(), "bytes of b");
    EXPECT_EQ(**read.contents.logo->read(), "logo");
    EXPECT_THAT(read.unknownEntries, ElementsAre("Attachments/sub", "notes.txt"));
}

TEST(PackageReader, Refuses_what_is_no_package)
{
    const ScratchFolder scratch;
    put(scratch / "plain", "text");
    fs::create_directory(scratch / "empty");
    fs::create_symlink("nowhere", scratch / "dangling");
    fs::create_directories(scratch / "folder/Main.json");
    put(scratch / "long/Main.json", std::string(1001, ' '));
    put(scratch / "full/Main.json", std::string(1000, ' '));

    EXPECT_EQ(problem(scratch / "nothing"), PackageProblem::notFound);
    EXPECT_EQ(problem(scratch / "no/folder"), PackageProblem::notFound);
    EXPECT_EQ(problem(scratch / "plain"), PackageProblem::notAPackage);
    EXPECT_EQ(problem(scratch / "dangling"), PackageProblem::notAPackage);
    EXPECT_EQ(problem(scratch / "empty"), PackageProblem::missingMainFile);
    EXPECT_EQ(problem(scratch / "folder"), PackageProblem::missingMainFile);
    EXPECT_EQ(problem(scratch / "long"), PackageProblem::tooLarge);
    EXPECT_TRUE(read_package_folder(scratch / "full", small_layout).ok());
}

/// None of these may hang either.
TEST(PackageReader, Takes_nothing_but_regular_files_for_the_main_file)
{
    const ScratchFolder scratch;
    put(scratch / "elsewhere", "one");
    fs::create_directory(scratch / "link");
    fs::create_symlink(scratch / "elsewhere", scratch / "link/Main.json");
    fs::create_directory(scratch / "fifo");
    ASSERT_EQ(mkfifo((scratch / "fifo/Main.json").c_str(), 0600), 0);
    fs::create_directory(scratch / "socket");
    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
    (scratch / "socket/Main.json").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(listening);

    for (const char* name : {"link", "fifo", "socket"})
        EXPECT_EQ(problem(scratch / name), PackageProblem::missingMainFile) << name;
}

TEST(PackageReader, Follows_the_link_to_a_package_but_none_inside)
{
    const ScratchFolder scratch;
    const std::string path = make_small_package(scratch);
    fs::create_symlink(path, scratch / "shortcut");
    EXPECT_EQ(opened(scratch / "shortcut").place->tree->path(), fs::canonical(path));

    put(scratch / "outside/secret", "not for the package");
    fs::create_symlink(scratch / "outside/secret", path + "/Attachments/link");
    ASSERT_EQ(mkfifo((path + "/Attachments/fifo").c_str(), 0600), 0);
    EXPECT_THAT(opened(path).contents.attachments, ElementsAre(Key("a"), Key("b")));

    fs::remove_all(path + "/Attachments");
    fs::create_symlink(scratch / "outside", path + "/Attachments");
    EXPECT_TRUE(opened(path).contents.attachments.empty());
    EXPECT_THAT(opened(path).unknownEntries, ElementsAre("Attachments"));
}

TEST(PackageReader, Costs_no_memory_for_big_attachments)
{
    const ScratchFolder scratch;
    const std::string path = make_small_package(scratch);
    constexpr std::int64_t terabyte = 1'099'511'627'776; // sparse
    ASSERT_EQ(truncate((path + "/Attachments/a").c_str(), terabyte), 0);
    EXPECT_EQ(opened(path).contents.attachments.at("a").size(), terabyte);
}

TEST(Blob, Notices_that_its_file_is_another_or_gone)
{
    const ScratchFolder scratch;
    const std::string path = make_small_package(scratch);
    const PackageRead read = opened(path);
    const Blob& a = read.contents.attachments.at("a");

    put(path + "/Attachments/a", "others' bytes");
    EXPECT_EQ(a.read().error().problem, BlobProblem::changed);
    fs::remove(path + "/Attachments/a");
    EXPECT_EQ(a.read().error().problem, BlobProblem::missing);
    fs::create_symlink(path + "/Attachments/b", path + "/Attachments/a");
    EXPECT_EQ(a.read().error().problem, BlobProblem::missing);

    const Blob& b = read.contents.attachments.at("b");
    fs::rename(path, scratch / "moved");
    EXPECT_FALSE(b.read().ok());
    read.place->tree->set_path(scratch / "moved");
    EXPECT_EQ(**b.read(), "bytes of b");
}

/// Exchanges the package for another one after the given number of calls, as a save in another program would.
class ExchangingCalls : public SystemCalls {
public:
    ExchangingCalls(std::string package, std::string other, int after)
        : package_(std::move(package)), other_(std::move(other)), left_(after)
    {
    }

    int status_at(int folder, const char* name, struct stat& status) override
    {
        exchange();
        return SystemCalls::status_at(folder, name, status);
    }
    int open_at(int folder, const char* name, int flags, mode_t mode) override
    {
        exchange();
        return SystemCalls::open_at(folder, name, flags, mode);
    }

private:
    void exchange()
    {
        if (left_-- == 0)
            renameat2(-100, package_.c_str(), -100, other_.c_str(), RENAME_EXCHANGE);
    }

    std::string package_;
    std::string other_;
    int left_;
};

TEST(PackageReader, Reads_one_state_whenever_a_save_exchanges_the_package)
{
    const ScratchFolder scratch;
    for (int after = 0; after < 20; ++after) {
        const std::string path = make_small_package(scratch);
        put(scratch / "new/Main.json", "two");
        put(scratch / "new/Attachments/c", "bytes of c");
        ExchangingCalls calls(path, scratch / "new", after);
        const PackageRead read = opened(path, calls);
        const bool is_new = read.contents.mainText == "two";
        EXPECT_EQ(read.contents.attachments.contains("c"), is_new) << after;
        for (const auto& [name, blob] : read.contents.attachments)
            EXPECT_TRUE(get(path + "/Main.json") != read.contents.mainText || blob.read().ok()) << after;
        fs::remove_all(path);
        fs::remove_all(scratch / "new");
    }
}

TEST(Leftovers, A_document_under_its_backup_name_is_put_back_unless_it_is_being_saved)
{
    const ScratchFolder scratch;
    setenv("XDG_RUNTIME_DIR", scratch.path().c_str(), 1);
    const std::string path = make_small_package(scratch);
    const std::string backup = scratch / ".~Pantry.quillfern.bak~";
    fs::rename(path, backup);
    {
        const auto lock = DocumentLock::acquire(path);
        ASSERT_TRUE(lock.ok());
        EXPECT_EQ(problem(path), PackageProblem::notFound);
        EXPECT_TRUE(fs::exists(backup));
        EXPECT_TRUE(read_package_folder(path, small_layout, &*lock).ok());
    }
    fs::rename(path, backup);
    EXPECT_EQ(opened(path).contents.mainText, "one");
    EXPECT_FALSE(fs::exists(backup));
}

TEST(Leftovers, Only_what_saves_of_this_document_left_is_cleaned_up)
{
    const ScratchFolder scratch;
    const std::string path = make_small_package(scratch);
    put(scratch / ".~Pantry.quillfern-0123abcd~/Attachments/a", "half built");
    put(scratch / ".~Pantry.quillfern-00000000~/Main.json", "displaced");
    put(scratch / ".~Pantry.quillfern-00000000~/notes.txt", "the user's own");
    put(scratch / ".~Pantry.quillfern.bak~/Main.json", "out of date");
    put(scratch / ".~Pantry.quillfern-notours~/Main.json", "1");
    put(scratch / ".~Other.quillfern-0123abcd~/Main.json", "1");

    const PackageRead read = opened(path);
    const DocumentLock lock = locked(scratch, path);
    EXPECT_EQ(clean_leftovers(*read.place, small_layout, nullptr, lock), 3);
    EXPECT_THAT(entries(scratch.path()),
        ElementsAre(".~Other.quillfern-0123abcd~", ".~Pantry.quillfern-notours~", "Pantry.quillfern", "locks"));
    EXPECT_EQ(get(path + "/notes.txt"), "the user's own");
}

} // namespace
} // namespace quillfern::platform
