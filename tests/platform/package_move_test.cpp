#include "platform/package_move.h"
#include "tests/faults/failing_calls.h"
#include "tests/platform/small_package.h"

#include <functional>
#include <gmock/gmock.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;
using faults::FailingCalls;

class PackageMove : public testing::Test {
protected:
    Result<Done, SaveError> move(SystemCalls& calls = system_calls())
    {
        return move_package(*read.place, target, small_layout, lock, target_lock, calls);
    }

    /// Whole at one of the two paths, and known to be there.
    void expect_whole()
    {
        const std::string present = fs::exists(path) ? path : target;
        EXPECT_NE(fs::exists(path), fs::exists(target));
        EXPECT_EQ(read.place->tree->path(), fs::canonical(present));
        EXPECT_EQ(get(present + "/Main.json"), "one");
        EXPECT_EQ(**read.contents.attachments.at("a").read(), "bytes of a");
    }

    ScratchFolder scratch;
    std::string path = make_small_package(scratch);
    std::string target = scratch / "elsewhere/Larder.quillfern";
    bool made = fs::create_directories(scratch / "elsewhere");
    PackageRead read = opened(path);
    DocumentLock lock = locked(scratch, path);
    DocumentLock target_lock = locked(scratch, target);
};

TEST_F(PackageMove, Takes_the_document_and_its_readers_along)
{
    ASSERT_TRUE(move().ok());
    EXPECT_FALSE(fs::exists(path));
    expect_whole();
    read.contents.mainText = "two";
    EXPECT_TRUE(save_package(*read.place, request(read.contents), target_lock).ok());
    EXPECT_EQ(get(target + "/Main.json"), "two");
}

TEST_F(PackageMove, Refuses_to_replace_anything_or_to_move_what_others_have_written)
{
    const struct {
        std::function<void()> before;
        SaveProblem problem;
    } cases[] = {
        {[&] { put(target, "a file"); }, SaveProblem::exists},
        {[&] { fs::create_directory(target); }, SaveProblem::exists},
        {[&] { fs::create_symlink("nowhere", target); }, SaveProblem::exists},
        {[&] { target = scratch / "missing/Larder.quillfern"; }, SaveProblem::noFolder},
        {[&] { put(path + "/Main.json", "someone else's"); }, SaveProblem::changedOnDisk},
        {[&] { fs::remove(path + "/Main.json"); }, SaveProblem::gone},
        {[&] { fs::remove_all(path); }, SaveProblem::gone},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(static_cast<int>(each.problem));
        each.before();
        const auto moved = move();
        ASSERT_FALSE(moved.ok());
        EXPECT_EQ(moved.error().problem, each.problem);
        EXPECT_EQ(read.place->tree->path(), fs::weakly_canonical(path));
        fs::remove_all(scratch / "elsewhere");
        fs::create_directories(scratch / "elsewhere");
    }
}

TEST_F(PackageMove, A_failing_call_leaves_it_where_it_was_or_has_moved_it)
{
    for (const bool happens_all_the_same : {false, true})
        for (const int error : {EIO, EACCES, EINTR}) {
            bool reached = true;
            for (int call = 0; reached; ++call) {
                SCOPED_TRACE(call);
                FailingCalls calls(call, error, FailingCalls::Lasting::once);
                calls.renames_all_the_same = happens_all_the_same;
                const auto moved = move(calls);
                reached = calls.reached();
                expect_whole();
                const bool stands_there = fs::exists(target);
                EXPECT_EQ(stands_there, moved.ok() || moved.error().problem == SaveProblem::notFlushed);
                if (stands_there) {
                    ASSERT_TRUE(move_package(*read.place, path, small_layout, target_lock, lock).ok());
                }
            }
        }
}

} // namespace
} // namespace quillfern::platform
