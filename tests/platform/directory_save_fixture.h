#pragma once

#include "tests/platform/small_package.h"

#include <gtest/gtest.h>

namespace quillfern::platform {

inline ino_t inode(const std::string& path)
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

} // namespace quillfern::platform
