#include "grants/recovery_store.h"

#include "grants/grant_file_json.h"
#include "platform/file_bytes.h"
#include "platform/file_copy.h"
#include "platform/file_save.h"
#include "platform/resolve.h"

#include <algorithm>
#include <fcntl.h>

namespace quillfern::grants {
namespace {

using platform::Blob;
using platform::Descriptor;
using platform::SaveError;
using platform::SaveProblem;
using platform::StoredFile;
using platform::SystemCalls;

int errno_of(const SaveError& error)
{
    return error.systemError != 0 ? error.systemError : EIO;
}

bool says_the_same(const RecoveryInfo& a, const RecoveryInfo& b)
{
    return a.path == b.path && a.title == b.title && a.base == b.base;
}

std::set<std::string> files_of(const RecoveryNote& note)
{
    std::set<std::string> names = {note.records};
    for (const auto& [name, file] : note.blobs)
        names.insert(file);
    if (note.logo)
        names.insert(*note.logo);
    return names;
}

Descriptor open_folder_of(const StoredFile& file, SystemCalls& calls)
{
    Descriptor folder = platform::open_folder(calls, file.tree->path());
    return folder && !file.folder.empty() ? platform::open_folder_at(calls, folder.get(), file.folder)
                                          : std::move(folder);
}

using Taken = Result<platform::FileStamp, SaveError>;

/// Links the file, or copies it when it must not stay where it is. The error's problem is `attachmentLost` when the
/// bytes that are meant are nowhere any more.
Taken link_or_copy(SystemCalls& calls, const platform::TargetFolder& target, const std::string& name,
    const StoredFile& file, bool copy)
{
    const Descriptor folder = open_folder_of(file, calls);
    const Descriptor opened =
        folder ? platform::open_file(calls, folder.get(), file.name.c_str(), O_RDONLY) : Descriptor();
    const auto refuse = [&](SaveProblem problem, int error) {
        return fail(SaveError{problem, platform::SaveStep::build, file.name, error});
    };
    if (!opened)
        return refuse(errno == ENOENT || errno == ENOTDIR ? SaveProblem::attachmentLost : SaveProblem::failed, errno);
    const auto linked = platform::link_file(calls, target, folder.get(), file.name, name, file.stamp);
    if (linked && *linked)
        return file.stamp;
    if (linked && !copy)
        return refuse(SaveProblem::failed, EXDEV);
    Taken taken = linked ? platform::copy_file(calls, target, name, opened.get(), file.stamp) : fail(linked.error());
    if (!taken && taken.error().problem == SaveProblem::changedOnDisk)
        return refuse(SaveProblem::attachmentLost, ESTALE);
    return taken;
}

} // namespace

RecoverySlot::RecoverySlot(std::string folder, SystemCalls& calls) : parent_(std::move(folder)), calls_(&calls) { }

int RecoverySlot::open_folder()
{
    if (folder_)
        return 0;
    auto made = RecoveryFolder::make(*calls_, parent_);
    if (!made)
        return made.error();
    folder_ = *std::move(made);
    return 0;
}

Result<Done, int> RecoverySlot::write(const OrgPackage& package, const RecoveryInfo& info)
{
    if (sure_of_note_ && written_ && *written_ == package && says_the_same(note_->info, info))
        return Done{};
    if (const int error = open_folder())
        return fail(error);
    RecoveryNote note;
    note.info = info;
    int error = write_records(package.file, note);
    if (!error)
        error = write_blobs(package, note);
    if (!error)
        error = write_note(note);
    if (!error)
        written_ = package;
    tidy();
    return error ? Result<Done, int>(fail(error)) : Done{};
}

int RecoverySlot::write_records(const GrantFile& file, RecoveryNote& note)
{
    if (written_ && written_->file == file) {
        note.records = note_->records;
        return 0;
    }
    note.records = fresh_name("records-");
    const auto saved = platform::save_file(
        folder_->inside(note.records), write_grant_file(file), platform::Overwrite::replaceFile, *calls_);
    return saved ? 0 : errno_of(saved.error());
}

int RecoverySlot::write_blobs(const OrgPackage& package, RecoveryNote& note)
{
    const std::string path = note.info.path.empty() ? "" : platform::resolve_document(note.info.path);
    for (const auto& [name, blob] : *package.attachments) {
        auto file = file_for(blob, path);
        if (!file)
            return file.error();
        note.blobs[name] = *std::move(file);
    }
    if (!package.logo)
        return 0;
    auto file = file_for(*package.logo, path);
    if (!file)
        return file.error();
    note.logo = *std::move(file);
    return 0;
}

/// Empty when the document's own package holds the bytes, or nobody does.
Result<std::string, int> RecoverySlot::file_for(const Blob& blob, const std::string& package_path)
{
    const auto known = std::find_if(
        blobs_.begin(), blobs_.end(), [&](const auto& each) { return each.first.identity() == blob.identity(); });
    if (known != blobs_.end())
        return known->second;
    const platform::BlobSource source = blob.source();
    if (const auto* file = std::get_if<StoredFile>(&source))
        return take_file(blob, *file, package_path);
    const std::string name = fresh_name("blob-");
    const auto saved = platform::save_file(
        folder_->inside(name), *std::get<Shared<std::string>>(source), platform::Overwrite::replaceFile, *calls_);
    if (!saved)
        return fail(errno_of(saved.error()));
    blobs_.emplace_back(blob, name);
    return name;
}

Result<std::string, int> RecoverySlot::take_file(
    const Blob& blob, const StoredFile& file, const std::string& package_path)
{
    const bool own = !package_path.empty() && file.tree->path() == package_path;
    const bool here = file.tree == folder_;
    const std::string name = here ? file.name : fresh_name("blob-");
    if (!here) {
        const Descriptor folder = platform::open_folder(*calls_, folder_->path());
        if (!folder)
            return fail(int{errno});
        const Taken taken = link_or_copy(*calls_, {folder.get(), folder_->path()}, name, file, !own);
        if (!taken && (own || taken.error().problem == SaveProblem::attachmentLost))
            return std::string();
        if (!taken)
            return fail(errno_of(taken.error()));
        if (!own)
            blob.move_to(StoredFile{folder_, "", name, *taken});
    }
    blobs_.emplace_back(blob, name);
    return name;
}

int RecoverySlot::write_note(const RecoveryNote& note)
{
    const auto saved = platform::save_file(
        folder_->inside(RecoveryFolder::note), recovery_note_text(note), platform::Overwrite::replaceFile, *calls_);
    sure_of_note_ = saved
        || (sure_of_note_ && saved.error().problem != SaveProblem::notFlushed
            && saved.error().step != platform::SaveStep::swap);
    if (!saved)
        return errno_of(saved.error());
    note_ = note;
    return 0;
}

/// Removes what the snapshot does not need: of earlier ones, and of an attempt that failed.
void RecoverySlot::tidy()
{
    if (!sure_of_note_)
        return;
    const std::set<std::string> used = note_ ? files_of(*note_) : std::set<std::string>();
    std::erase_if(blobs_, [&](const auto& blob) { return !used.contains(blob.second); });
    folder_->keep_only(used);
}

void RecoverySlot::discard()
{
    written_.reset();
    note_.reset();
    blobs_.clear();
    sure_of_note_ = true;
    if (folder_)
        folder_->abandon();
    folder_.reset();
}

} // namespace quillfern::grants
