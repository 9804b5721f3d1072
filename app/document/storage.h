#pragma once

#include "app/document/pace.h"
#include "platform/versions_store.h"

#include <string>

namespace quillfern::app {

/// Where the program keeps what belongs to no document's folder: earlier versions, and what a crash must not take; and
/// how soon.
class Storage {
public:
    /// In `folder`, which is made when something is kept there first.
    explicit Storage(const std::string& folder, Pace pace = {});

    platform::VersionsStore& versions() { return versions_; }
    const Pace& pace() const { return pace_; }
    const std::string& recovery_folder() const { return recovery_folder_; }

private:
    platform::VersionsStore versions_;
    std::string recovery_folder_;
    Pace pace_;
};

} // namespace quillfern::app
