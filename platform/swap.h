#pragma once

#include "platform/save_error.h"
#include "platform/system_calls.h"

#include "base/result.h"

#include <cstdint>
#include <string>

namespace quillfern::platform {

/// Names in one open folder, `path` for errors.
struct SwapNames {
    int parent = -1;
    std::string path; ///< of the parent
    std::string document;
    std::string sibling; ///< the finished tree
    std::uint64_t siblingInode = 0;
};

/// Puts the sibling in the document's place. The result is the name under which the displaced tree now stands in the
/// same folder. On an error the document is as it was, and the sibling still there; but for `notFlushed`, when the
/// system reported an error and does not say either what stands where now.
///
/// Where the file system cannot exchange two names, the document is first renamed to its backup name; a crash before
/// the second rename leaves it there, and reading puts it back.
Result<std::string, SaveError> swap_in(SystemCalls& calls, const SwapNames& names);

/// The same for a document that does not exist yet: `exists` when something has its name after all.
Result<Done, SaveError> move_in(SystemCalls& calls, const SwapNames& names);

} // namespace quillfern::platform
