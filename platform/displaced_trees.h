#pragma once

#include "platform/package_place.h"

#include <memory>
#include <string>

namespace quillfern::platform {

/// Who takes the trees that saves displace: the previous state of a document, with the attachments that an edit has
/// dropped and that an undo step may still want.
///
/// Blobs follow the tree to its new place. A keeper that deletes old trees holds a weak_ptr to each one's location:
/// when `living()` is not empty, somebody still reads from it.
class DisplacedTrees {
public:
    virtual ~DisplacedTrees() = default;

    /// Moves the tree from `tree->path()` and sets its new path. On an errno it stands whole where it was. `document`
    /// is the path of the document that it was.
    virtual Result<Done, int> take(const std::string& document, const std::shared_ptr<TreeLocation>& tree) = 0;
};

/// Keeps every tree in one folder, each under a name that begins with the document's and the moment's. A tree from
/// another disk is copied there; attachments that are in `like`, an earlier tree of the same document, too, are linked
/// to it instead. Deletes nothing that it keeps.
class TreesInFolder : public DisplacedTrees {
public:
    explicit TreesInFolder(std::string folder, SystemCalls& calls = system_calls(), std::string like = "")
        : folder_(std::move(folder)), like_(std::move(like)), calls_(calls)
    {
    }

    Result<Done, int> take(const std::string& document, const std::shared_ptr<TreeLocation>& tree) override;

private:
    std::string folder_;
    std::string like_;
    SystemCalls& calls_;
};

/// Deletes what a package of this layout holds, the main file first, so that what a crash leaves is no package any
/// more. An entry that is none of the layout's stays, and the folder with it. 0 or an errno.
int remove_tree(SystemCalls& calls, const std::string& path, const PackageLayout& layout);

/// The errno of the first thing that went wrong; 0 when nothing of `tree` is wanted any more and it is gone.
///
/// Before that, entries of the tree that are none of ours move to `package`, so that nothing of the user's is lost
/// where nobody keeps displaced trees, and blobs that somebody still holds are read into memory.
int discard_tree(SystemCalls& calls, const std::shared_ptr<TreeLocation>& tree, const std::string& package,
    const PackageLayout& layout);

/// Moves entries (paths inside the packages, "Attachments/scan.pdf") from one package to another of the same disk. A
/// name that is taken gets a number. 0 or an errno.
int move_entries(
    SystemCalls& calls, const std::string& from, const std::string& to, const std::vector<std::string>& entries);

/// Gives the tree a name of its own beside the document: "NAME (conflict, 2026-03-07).quillfern".
Result<Done, int> keep_as_conflict(SystemCalls& calls, const std::shared_ptr<TreeLocation>& tree,
    const std::string& document, const std::string& date);

} // namespace quillfern::platform
