#include "platform/directory_save.h"

#include "platform/package_saver.h"
#include "platform/rename.h"
#include "platform/resolve.h"
#include "platform/settle.h"

#include <fcntl.h>
#include <utility>

namespace quillfern::platform {
namespace {

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
    for (const auto& [tree, is_ours, holds_more] : place.keptTrees) {
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
        place.keptTrees.push_back({displaced.tree, true, std::exchange(place.holdsMore, false)});
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
