#include "grants/recovery_store.h"

#include "grants/grant_file_json.h"
#include "grants/recovery_names.h"
#include "platform/file_save.h"
#include "platform/random_uuid.h"
#include "platform/state_folder.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <set>

namespace quillfern::grants {
namespace {

namespace fs = std::filesystem;
using platform::Blob;
using platform::StoredFile;

using recovery::lock_name;
using recovery::note_name;

/// The file that a blob reads from; null when its bytes are in memory.
const StoredFile* stored(const platform::BlobSource& source)
{
    return std::get_if<StoredFile>(&source);
}

bool link_to(const StoredFile& file, const std::string& name)
{
    std::error_code error;
    fs::create_hard_link(fs::path(file.tree->path()) / file.folder / file.name, name, error);
    return !error;
}

} // namespace

RecoverySlot::RecoverySlot(std::string folder, platform::SystemCalls& calls)
    : folder_(std::move(folder)), calls_(&calls)
{
}

int RecoverySlot::open_folder()
{
    if (lock_)
        return 0;
    const std::string path = folder_ + '/' + platform::random_uuid().text();
    if (const int error = platform::make_private_folder(path))
        return error;
    lock_ = platform::open_file(*calls_, AT_FDCWD, (path + '/' + lock_name).c_str(), O_RDWR | O_CREAT, 0600);
    if (!lock_)
        return errno;
    path_ = path;
    // Whoever looks for leftovers in this very moment lets go at once, having found no note.
    return platform::retrying([&] { return calls_->lock(lock_.get()); }) == 0 || errno == EAGAIN ? 0 : errno;
}

Result<Done, int> RecoverySlot::write(const OrgPackage& package, const RecoveryInfo& info)
{
    if (written_ && *written_ == package)
        return Done{};
    if (const int error = open_folder())
        return fail(error);
    RecoveryNote note;
    note.info = info;
    note.records = "records-" + std::to_string(++files_);
    if (const int error = write_blobs(package, info, note))
        return fail(error);
    if (const auto records = write_file(note.records, write_grant_file(package.file)); !records)
        return records;
    if (const auto noted = write_file(note_name, recovery_note_text(note)); !noted)
        return noted;
    written_ = package;
    remove_unused(note);
    return Done{};
}

int RecoverySlot::write_blobs(const OrgPackage& package, const RecoveryInfo& info, RecoveryNote& note)
{
    for (const auto& [name, blob] : *package.attachments) {
        auto file = file_for(blob, info.path);
        if (!file)
            return file.error();
        note.blobs[name] = *std::move(file);
    }
    if (!package.logo)
        return 0;
    auto file = file_for(*package.logo, info.path);
    if (!file)
        return file.error();
    note.logo = *std::move(file);
    return 0;
}

/// Empty when the document's own package holds the bytes.
Result<std::string, int> RecoverySlot::file_for(const Blob& blob, const std::string& package_path)
{
    const platform::BlobSource source = blob.source();
    if (const StoredFile* file = stored(source); file && !package_path.empty() && file->tree->path() == package_path)
        return std::string();
    const auto known = std::find_if(
        blobs_.begin(), blobs_.end(), [&](const auto& each) { return each.first.identity() == blob.identity(); });
    if (known != blobs_.end())
        return known->second;
    const std::string name = "blob-" + std::to_string(++files_);
    if (const StoredFile* file = stored(source); !file || !link_to(*file, inside(name))) {
        const auto bytes = blob.read(*calls_);
        if (!bytes)
            return fail(bytes.error().systemError != 0 ? bytes.error().systemError : ENOENT);
        if (const auto written = write_file(name, **bytes); !written)
            return fail(written.error());
    }
    blobs_.emplace_back(blob, name);
    return name;
}

Result<Done, int> RecoverySlot::write_file(const std::string& name, std::string_view bytes)
{
    const auto saved = platform::save_file(inside(name), bytes, platform::Overwrite::replaceFile, *calls_);
    if (!saved)
        return fail(saved.error().systemError != 0 ? saved.error().systemError : EIO);
    return Done{};
}

void RecoverySlot::remove_unused(const RecoveryNote& note)
{
    std::set<std::string> used = {note_name, lock_name, note.records};
    for (const auto& [name, file] : note.blobs)
        used.insert(file);
    if (note.logo)
        used.insert(*note.logo);
    std::erase_if(blobs_, [&](const auto& blob) { return !used.contains(blob.second); });
    std::error_code error; // what cannot be removed is removed after the next snapshot
    for (fs::directory_iterator each(path_, error), end; !error && each != end; each.increment(error)) {
        std::error_code kept;
        // An undo step may still read recovered bytes from here; they go with the slot.
        if (!used.contains(each->path().filename()) && !tree_)
            fs::remove(each->path(), kept);
    }
}

void RecoverySlot::discard()
{
    if (!lock_)
        return;
    if (tree_)
        for (const Blob& blob : tree_->living())
            if (const auto bytes = blob.read(*calls_))
                blob.move_to(*bytes);
    std::error_code error;
    fs::remove(inside(note_name), error); // first: without it the rest is no snapshot
    fs::remove_all(path_, error);
    lock_ = {};
    path_.clear();
    written_.reset();
    blobs_.clear();
    tree_.reset();
}

} // namespace quillfern::grants
