#include "platform/directory_save.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"
#include "platform/resolve.h"
#include "platform/settle.h"
#include "platform/swap.h"
#include "platform/tree_builder.h"

#include <algorithm>
#include <fcntl.h>
#include <future>

namespace quillfern::platform {
namespace {

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

Step PackageSaver::check_contents() const
{
    const PackageContents& contents = request_.contents;
    const bool too_long = static_cast<std::int64_t>(contents.mainText.size()) > layout_.mainFileLimit;
    if (too_long || !is_file_name(split_.name))
        return fail(error(SaveProblem::badContents));
    for (const auto& [name, blob] : contents.attachments)
        if (!is_file_name(name) || name.starts_with('.') || layout_.attachmentsFolder.empty())
            return fail(SaveError{SaveProblem::badContents, SaveStep::check, name, 0});
    return Done{};
}

Step PackageSaver::open_parent()
{
    parent_ = open_folder(calls_, split_.folder);
    if (parent_)
        return Done{};
    if (errno == ENOENT || errno == ENOTDIR)
        return fail(SaveError{SaveProblem::noFolder, SaveStep::check, split_.folder, errno});
    return fail(save_error(SaveStep::check, split_.folder, errno));
}

/// What is at the path must be a package of ours that may be written.
Step PackageSaver::open_present()
{
    present.folder = open_folder_at(calls_, parent_.get(), split_.name);
    if (!present.folder && errno == ENOENT)
        return fail(error(SaveProblem::gone));
    if (!present.folder && (errno == ENOTDIR || errno == ELOOP))
        return fail(error(SaveProblem::notAPackage));
    if (!present.folder)
        return fail(save_error(SaveStep::check, path_, errno));
    auto listing = list_package(calls_, present.folder.get(), layout_);
    if (!listing)
        return fail(save_error(SaveStep::check, path_, listing.error()));
    if (!listing->mainFile)
        return fail(error(SaveProblem::notAPackage));
    present.listing = std::move(*listing);
    if (present.listing.hasAttachmentsFolder)
        present.attachments = open_folder_at(calls_, present.folder.get(), layout_.attachmentsFolder);
    if (present.listing.hasAttachmentsFolder && !present.attachments)
        return fail(save_error(SaveStep::check, path_, errno));
    // Exchanging the folder would get round a package that its owner has made read-only.
    for (const char* name : {".", layout_.mainFile.c_str()})
        if (calls_.may_write_at(present.folder.get(), name) != 0)
            return fail(save_error(SaveStep::check, path_, errno));
    replaces = true;
    return Done{};
}

Step PackageSaver::check_unchanged(const Fingerprint& before)
{
    const auto difference = compare_with(calls_, before, present.listing, present.folder.get(), layout_);
    if (!difference)
        return fail(save_error(SaveStep::check, path_, difference.error()));
    if (*difference != Difference::none)
        return fail(error(SaveProblem::changedOnDisk));
    for (const auto& [name, stamp] : present.listing.attachments)
        if (!before.listing.attachments.contains(name) && !request_.contents.attachments.contains(name))
            arrived.emplace(name, stamp);
    return Done{};
}

Step PackageSaver::make_sibling()
{
    for (int attempt = 1;; ++attempt) {
        sibling_ = fresh_sibling_name(split_.name);
        if (calls_.make_folder_at(parent_.get(), sibling_.c_str(), 0700) == 0)
            return Done{};
        if (errno != EEXIST || attempt == 10)
            return fail(save_error(SaveStep::build, split_.folder, errno));
    }
}

Step PackageSaver::build(Reuse reuse, const TreeLocation* own_tree)
{
    std::future<bool> reads_back;
    if (request_.readsBack)
        reads_back = std::async(std::launch::async, request_.readsBack);
    if (const Step made = make_sibling(); !made)
        return made;
    const Descriptor folder = open_folder_at(calls_, parent_.get(), sibling_);
    const int error = errno;
    const BuildPlan plan{.layout = layout_,
        .contents = request_.contents,
        .present = replaces ? &present : nullptr,
        .presentTree = own_tree,
        .reuse = reuse,
        .arrived = arrived};
    auto tree = folder ? build_tree(calls_, {folder.get(), path_of(sibling_)}, plan)
                       : fail(save_error(SaveStep::build, path_of(sibling_), error));
    if (tree && reads_back.valid() && !reads_back.get())
        tree = fail(this->error(SaveProblem::badContents));
    if (!tree) {
        remove_new_state(sibling_);
        return fail(tree.error());
    }
    built = std::move(*tree);
    return Done{};
}

Step PackageSaver::exchange()
{
    const auto name =
        swap_in(calls_, {parent_.get(), split_.folder, split_.name, sibling_, built.fingerprint.listing.inode});
    if (!name) {
        if (name.error().problem != SaveProblem::notFlushed)
            remove_new_state(sibling_);
        return fail(name.error());
    }
    displaced = path_of(*name);
    return Done{};
}

Step PackageSaver::move_to_new_name()
{
    const auto moved =
        move_in(calls_, {parent_.get(), split_.folder, split_.name, sibling_, built.fingerprint.listing.inode});
    if (!moved && moved.error().problem != SaveProblem::notFlushed)
        remove_new_state(sibling_);
    return moved;
}

Step PackageSaver::flush_parent()
{
    auto flushed = flush(calls_, parent_.get(), split_.folder);
    if (!flushed)
        return fail(SaveError{SaveProblem::notFlushed, SaveStep::flush, split_.folder, flushed.error().systemError});
    return flushed;
}

/// A tree of which nothing has become the document. What cannot be removed now is removed as a leftover.
void PackageSaver::remove_new_state(const std::string& name) const
{
    remove_tree(calls_, path_of(name), layout_);
}

void PackageSaver::tell(PackagePlace& place, SaveOutcome& outcome) const
{
    for (const auto& [name, stamp] : arrived)
        if (place.arrived.insert(name).second)
            outcome.arrived.push_back(name);
    std::copy_if(present.listing.unknownEntries.begin(), present.listing.unknownEntries.end(),
        std::back_inserter(outcome.unknownEntries), [](const std::string& entry) { return !is_desktop_litter(entry); });
}

/// Replaces the package at the saver's path, which `before` describes. The result is what the last flush said.
Result<Step, SaveError> replace(
    PackageSaver& saver, const Fingerprint& before, Reuse reuse, const TreeLocation* own_tree)
{
    if (const Step unchanged = saver.check_unchanged(before); !unchanged)
        return fail(unchanged.error());
    if (const Step built = saver.build(reuse, own_tree); !built)
        return fail(built.error());
    if (const Step exchanged = saver.exchange(); !exchanged)
        return fail(exchanged.error());
    return saver.flush_parent();
}

/// The displaced tree, as `before` describes it.
Displaced displaced_tree(const PackageSaver& saver, std::shared_ptr<TreeLocation> tree, Fingerprint before)
{
    before.listing.attachments.insert(saver.arrived.begin(), saver.arrived.end());
    return {std::move(tree), std::move(before)};
}

Step look(PackageSaver& saver)
{
    const Step checked = saver.check_contents();
    return checked ? saver.open_parent() : checked;
}

/// The tree that blobs of the request read from and that stands at `path`, if there is one.
std::shared_ptr<TreeLocation> tree_at(const std::string& path, const PackageContents& contents)
{
    for (const auto& [name, blob] : contents.attachments) {
        const BlobSource source = blob.source();
        const auto* file = std::get_if<StoredFile>(&source);
        if (file && file->tree->path() == path)
            return file->tree;
    }
    return std::make_shared<TreeLocation>(path);
}

/// A tree that an unflushed save has left under the backup name, which this save may need.
void free_backup_name(SystemCalls& calls, const PackagePlace& place)
{
    const SplitPath split = split_path(place.tree->path());
    const std::string backup = join_path(split.folder, backup_name(split.name));
    for (const auto& tree : place.keptTrees) {
        const std::string free = join_path(split.folder, fresh_sibling_name(split.name));
        if (tree->path() == backup && rename_to_free_name(calls, AT_FDCWD, backup, AT_FDCWD, free) == 0)
            tree->set_path(free);
    }
}

Result<Displaced, SaveError> replace_at(PackageSaver& saver, const std::string& path, const PackageContents& contents)
{
    const Fingerprint before{saver.present.listing, {}};
    const auto replaced = replace(saver, before, Reuse::clones, nullptr);
    if (!replaced)
        return fail(replaced.error());
    if (!*replaced)
        return fail(replaced->error());
    return displaced_tree(saver, set_apart(tree_at(path, contents), saver.displaced, {}), before);
}

Step create_at(PackageSaver& saver, const std::string& path, const PackageLayout& layout, SystemCalls& calls)
{
    if (const Step built = saver.build(Reuse::clones, nullptr); !built)
        return built;
    if (const Step moved = saver.move_to_new_name(); !moved)
        return moved;
    const Step flushed = saver.flush_parent();
    if (!flushed)
        remove_tree(calls, path, layout); // A new document that may vanish is no document yet.
    return flushed;
}

/// Whether a package stands at the saver's path that may be replaced; false when nothing is there.
Result<bool, SaveError> look_at_target(PackageSaver& saver, Existing existing)
{
    const Step opened = saver.open_present();
    if (!opened && opened.error().problem == SaveProblem::gone)
        return false;
    const bool taken = opened || opened.error().problem == SaveProblem::notAPackage;
    if (taken && existing == Existing::refuse)
        return fail(saver.error(SaveProblem::exists));
    if (!opened)
        return fail(opened.error());
    return true;
}

} // namespace

Result<SaveOutcome, SaveError> save_package(
    PackagePlace& place, const SaveRequest& request, const DocumentLock&, SystemCalls& calls)
{
    PackageSaver saver(calls, request, place.tree->path());
    if (const Step looked = look(saver); !looked)
        return fail(looked.error());
    if (const Step opened = saver.open_present(); !opened)
        return fail(opened.error());
    free_backup_name(calls, place);
    const auto replaced =
        replace(saver, place.fingerprint, place.trusted ? Reuse::links : Reuse::copies, place.tree.get());
    if (!replaced)
        return fail(replaced.error());

    place.trusted = replaced->ok();
    const Displaced displaced =
        displaced_tree(saver, set_apart(place.tree, saver.displaced, request.contents), std::move(place.fingerprint));
    place.fingerprint = std::move(saver.built.fingerprint);
    adopt(request.contents, request.layout, place.fingerprint.listing, place.tree, !place.trusted);
    if (!place.trusted) {
        place.keptTrees.push_back(displaced.tree);
        return fail(replaced->error());
    }
    SaveOutcome outcome;
    saver.tell(place, outcome);
    settle(calls, place, request, displaced, outcome);
    return outcome;
}

Result<NewPackage, SaveError> save_package_as(const std::string& path, const SaveRequest& request, Existing existing,
    Ownership ownership, const DocumentLock&, SystemCalls& calls)
{
    const std::string resolved = resolve_document(path);
    PackageSaver saver(calls, request, resolved);
    if (const Step looked = look(saver); !looked)
        return fail(looked.error());
    const auto replaces = look_at_target(saver, existing);
    if (!replaces)
        return fail(replaces.error());
    auto displaced = Result<Displaced, SaveError>(Displaced{});
    if (*replaces)
        displaced = replace_at(saver, resolved, request.contents);
    else if (const Step created = create_at(saver, resolved, request.layout, calls); !created)
        displaced = fail(created.error());
    if (!displaced)
        return fail(displaced.error());

    NewPackage made{std::make_shared<PackagePlace>(), {}};
    made.place->tree = std::make_shared<TreeLocation>(resolved);
    made.place->fingerprint = saver.built.fingerprint;
    if (ownership == Ownership::document)
        adopt(request.contents, request.layout, saver.built.fingerprint.listing, made.place->tree, false);
    saver.tell(*made.place, made.outcome);
    settle(calls, *made.place, request, *displaced, made.outcome);
    return made;
}

} // namespace quillfern::platform
