#pragma once

#include "base/instant.h"
#include "platform/displaced_trees.h"
#include "platform/version_pruning.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quillfern::platform {

/// An earlier state of a document: a package of its own.
struct Version {
    std::string path;
    Instant savedAt; ///< when it was the document

    friend bool operator==(const Version&, const Version&) = default;
};

/// The earlier states of all documents. Each save puts the state that it displaces here, and pruning takes away what
/// nobody goes back to. Documents are known by their real paths, however one gets there.
///
///     FOLDER/Pantry.quillfern-3f9a0c1b22d4e5f6/     a document, by its path
///         document                                  the path, for whoever looks for a lost file
///         Pantry.quillfern-20260307T140322125Z-0f3a99c1/
///
/// May be used from several threads.
class VersionsStore : public DisplacedTrees {
public:
    /// `main_file` tells by its time when a state was saved. The folder is made when it is needed.
    explicit VersionsStore(std::string folder, std::string main_file, SystemCalls& calls = system_calls());

    Result<Done, int> take(const std::string& document, const std::shared_ptr<TreeLocation>& tree) override;

    /// The newest first.
    std::vector<Version> versions_of(const std::string& document) const;

    /// The document has another path: its history goes along. Where the new path has a history of its own (of a
    /// document that was there before), the two become one.
    void follow(const std::string& from, const std::string& to);

    /// A state has been read from here: it stays as long as somebody holds its blobs. False when it has gone meanwhile.
    bool protect(const std::shared_ptr<TreeLocation>& tree);

    /// Takes away the states of this document that the rule does not keep, and what crashes have left half copied or
    /// half removed. For the holder of the document's lock.
    void prune(const std::string& document, Instant now, const PruningRule& rule = {});

private:
    std::string folder_of(const std::string& document) const;
    bool is_version(const std::string& path) const;
    bool is_in_use(const std::string& path) const; ///< the mutex is held
    void move_version(const std::string& from, const std::string& to);
    void remove_dead(const std::string& folder);
    void remove(const std::string& path);

    std::string folder_;
    std::string main_file_;
    SystemCalls& calls_;
    mutable std::mutex mutex_; ///< guards what follows
    std::vector<std::weak_ptr<TreeLocation>> in_use_;
};

} // namespace quillfern::platform
