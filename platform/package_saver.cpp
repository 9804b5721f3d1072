#include "platform/package_saver.h"

#include "platform/file_bytes.h"
#include "platform/swap.h"

#include <algorithm>
#include <iterator>

namespace quillfern::platform {

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
    if (const Step made = make_sibling(); !made)
        return made;
    const Descriptor folder = open_folder_at(calls_, parent_.get(), sibling_);
    const int error = errno;
    const BuildPlan plan{.layout = layout_,
        .contents = request_.contents,
        .present = replaces ? &present : nullptr,
        .presentTree = own_tree,
        .reuse = reuse,
        .arrived = arrived,
        .readsBack = request_.readsBack};
    auto tree = folder ? build_tree(calls_, {folder.get(), path_of(sibling_)}, plan)
                       : fail(save_error(SaveStep::build, path_of(sibling_), error));
    if (!tree) {
        remove_new_state(sibling_);
        const bool unreadable = tree.error().problem == SaveProblem::badContents;
        return fail(unreadable ? this->error(SaveProblem::badContents) : tree.error());
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

} // namespace quillfern::platform
