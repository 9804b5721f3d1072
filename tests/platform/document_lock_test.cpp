#include "platform/document_lock.h"

#include "tests/platform/scratch_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

namespace fs = std::filesystem;

TEST(DocumentLock, Is_held_once_by_whatever_way_the_document_is_reached)
{
    const ScratchFolder scratch;
    put(scratch / "folder/A.quillfern/Quillfern.json", "{}");
    fs::create_symlink(scratch / "folder", scratch / "way");
    fs::create_symlink(scratch / "folder/A.quillfern", scratch / "shortcut");
    fs::create_directory(scratch / "locks");
    const auto acquire = [&](const std::string& name) {
        return DocumentLock::acquire_in(scratch / "locks", scratch / name);
    };
    {
        const auto held = acquire("folder/A.quillfern");
        ASSERT_TRUE(held.ok());
        for (const char* name : {"folder/A.quillfern", "folder/A.quillfern/", "way/A.quillfern", "shortcut"}) {
            const auto second = acquire(name);
            ASSERT_FALSE(second.ok()) << name;
            EXPECT_TRUE(second.error().held);
            EXPECT_EQ(second.error().holder.process, getpid());
            EXPECT_FALSE(second.error().holder.host.empty());
        }
        EXPECT_TRUE(acquire("folder/B.quillfern").ok()) << "a document to be";
    }
    EXPECT_TRUE(acquire("shortcut").ok());
    EXPECT_EQ(acquire("no/A.quillfern").error().systemError, ENOENT);
}

TEST(DocumentLock, Does_not_use_a_runtime_folder_that_others_can_enter)
{
    const ScratchFolder scratch;
    setenv("XDG_RUNTIME_DIR", scratch.path().c_str(), 1);
    fs::create_directory(scratch / "quillfern");
    fs::permissions(scratch / "quillfern", fs::perms(0777));
    ASSERT_TRUE(DocumentLock::acquire(scratch / "A").ok());
    EXPECT_TRUE(fs::is_empty(scratch / "quillfern"));
    fs::remove(scratch / "quillfern");
    ASSERT_TRUE(DocumentLock::acquire(scratch / "A").ok());
    EXPECT_FALSE(fs::is_empty(scratch / "quillfern"));
}

} // namespace
} // namespace quillfern::platform
