#pragma once

#include "base/result.h"
#include "platform/descriptor.h"
#include "platform/tree_location.h"

#include <memory>
#include <set>
#include <string>

namespace quillfern::grants {

/// The folder of one snapshot. Its lock is held as long as somebody writes the snapshot or reads bytes from it, so that
/// no other program takes it for a leftover. Once abandoned it goes with the last of its holders.
class RecoveryFolder : public platform::TreeLocation {
public:
    static constexpr const char* note = "note";

    /// A new one in `parent`, which is made when it is missing. The error is an errno.
    static Result<std::shared_ptr<RecoveryFolder>, int> make(platform::SystemCalls& calls, const std::string& parent);

    /// One that a program that is no more has left; null when it may be alive, or is none of ours.
    static std::shared_ptr<RecoveryFolder> take_over(platform::SystemCalls& calls, const std::string& path);

    RecoveryFolder(platform::SystemCalls& calls, std::string path, platform::Descriptor lock);
    RecoveryFolder(const RecoveryFolder&) = delete;
    RecoveryFolder& operator=(const RecoveryFolder&) = delete;
    ~RecoveryFolder();

    std::string inside(const std::string& name) const { return path() + '/' + name; }

    /// Removes every file but these, the note, and those that a blob reads from. What cannot be removed now is removed
    /// another time.
    void keep_only(const std::set<std::string>& names);

    /// The snapshot is not wanted any more.
    void abandon();

    /// The same, unless the folder holds a note, which may be for another version to read, or what is none of ours.
    void abandon_if_dead();

private:
    void remove(const std::string& name) const;

    platform::SystemCalls& calls_;
    platform::Descriptor lock_;
    bool abandoned_ = false;
};

} // namespace quillfern::grants
