#pragma once

#include "platform/directory_save.h"
#include "platform/package_reader.h"

#include <optional>
#include <string>

/// Numbered states of one document, made so that a mixture of two of them is noticed.
namespace quillfern::faults {

extern const platform::PackageLayout layout;

/// The state `number`: a text, a logo and an attachment that are this state's own, and one attachment that all share.
/// The shared one is taken from `before` when there is one, as an unchanged attachment of an open document is.
platform::PackageContents version(int number, const platform::PackageContents* before = nullptr);

struct Verdict {
    int number = 0; ///< the state that was found; 0 when it is not whole
    std::string fault; ///< what is wrong
};

/// What stands at the path. `read` is what reading gave.
Verdict judge(const platform::PackageRead& read);
Verdict judge(const std::string& path, const platform::DocumentLock* lock = nullptr);

/// The hidden siblings that stand beside the document.
int debris(const std::string& path);

/// The sabotaged saver: writes over the files where they are.
bool save_in_place(platform::SystemCalls& calls, const std::string& path, int number);

} // namespace quillfern::faults
