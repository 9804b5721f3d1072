#include "platform/file_save.h"

#include "tests/platform/scratch_folder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;

SaveProblem problem(const Result<Done, SaveError>& saved)
{
    EXPECT_FALSE(saved.ok());
    return saved.error().problem;
}

TEST(FileSave, Writes_new_files_and_replaces_regular_ones_when_told_to)
{
    const ScratchFolder scratch;
    const std::string path = scratch / "grants.csv";
    EXPECT_TRUE(save_file(path, "one", Overwrite::refuse).ok());
    EXPECT_EQ(problem(save_file(path, "two", Overwrite::refuse)), SaveProblem::exists);
    EXPECT_EQ(get(path), "one");
    fs::permissions(path, fs::perms(0640));
    fs::create_symlink(path, scratch / "link");
    EXPECT_TRUE(save_file(scratch / "link", "three", Overwrite::replaceFile).ok());
    EXPECT_EQ(get(path), "three");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(scratch / "link"));

    fs::create_directory(scratch / "folder");
    ASSERT_EQ(mkfifo((scratch / "fifo").c_str(), 0600), 0);
    fs::create_symlink("nowhere", scratch / "dangling");
    for (const char* name : {"folder", "fifo", "dangling"})
        EXPECT_EQ(problem(save_file(scratch / name, "x", Overwrite::replaceFile)), SaveProblem::notAPackage) << name;
    EXPECT_EQ(problem(save_file(scratch / "no/file", "x", Overwrite::refuse)), SaveProblem::noFolder);
    EXPECT_THAT(entries(scratch.path()), testing::ElementsAre("dangling", "fifo", "folder", "grants.csv", "link"));
}

TEST(FileSave, A_full_disk_leaves_the_old_file_and_no_debris)
{
    class FullDisk : public SystemCalls {
    public:
        ssize_t write(int file, const void* bytes, std::size_t) override
        {
            return left-- > 0 ? SystemCalls::write(file, bytes, 1) : (errno = ENOSPC, -1);
        }
        int left = 3;
    } calls;
    const ScratchFolder scratch;
    put(scratch / "a.ics", "old");
    EXPECT_EQ(problem(save_file(scratch / "a.ics", "longer", Overwrite::replaceFile, calls)), SaveProblem::diskFull);
    EXPECT_EQ(get(scratch / "a.ics"), "old");
    EXPECT_EQ(entries(scratch.path()).size(), 1u);
}

} // namespace
} // namespace quillfern::platform
