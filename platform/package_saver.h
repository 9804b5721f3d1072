#pragma once

#include "platform/directory_save.h"
#include "platform/hidden_names.h"
#include "platform/tree_builder.h"

#include <string>

namespace quillfern::platform {

using Step = Result<Done, SaveError>;

/// One save, step by step. After each step that succeeds the fields below hold what it found or made.
class PackageSaver {
public:
    PackageSaver(SystemCalls& calls, const SaveRequest& request, std::string path)
        : calls_(calls), request_(request), layout_(request.layout), path_(std::move(path)), split_(split_path(path_))
    {
    }

    Step check_contents() const;
    Step open_parent();
    Step open_present();
    Step check_unchanged(const Fingerprint& before);
    Step build(Reuse reuse, const TreeLocation* own_tree);
    Step exchange();
    Step move_to_new_name();
    Step flush_parent();

    void remove_new_state(const std::string& name) const;
    void tell(PackagePlace& place, SaveOutcome& outcome) const;

    std::string path_of(const std::string& name) const { return join_path(split_.folder, name); }
    SaveError error(SaveProblem problem) const { return {problem, SaveStep::check, path_, 0}; }

    PresentPackage present;
    bool replaces = false; ///< a package stands at the path
    StampedFiles arrived;
    BuiltTree built;
    std::string displaced; ///< path of the displaced tree

private:
    Step make_sibling();

    SystemCalls& calls_;
    const SaveRequest& request_;
    const PackageLayout& layout_;
    std::string path_;
    SplitPath split_;
    Descriptor parent_;
    std::string sibling_;
};

} // namespace quillfern::platform
