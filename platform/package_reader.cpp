#include "platform/package_reader.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"
#include "platform/rename.h"
#include "platform/resolve.h"

#include <chrono>
#include <fcntl.h>
#include <thread>

namespace quillfern::platform {
namespace {

using ReadResult = Result<PackageRead, PackageReadError>;

/// Someone writes the package in this very moment; the next attempt will find it at rest.
constexpr int written_meanwhile = ESTALE;

constexpr int attempts = 20;
constexpr std::chrono::milliseconds pause{10};

class PackageReader {
public:
    PackageReader(SystemCalls& calls, const PackageLayout& layout, std::string path)
        : calls_(calls), layout_(layout), path_(std::move(path)), split_(split_path(path_))
    {
    }

    ReadResult read();

private:
    ReadResult read_opened(int package);
    Result<FileStamp, PackageReadError> read_main_file(int package, std::string& text);
    Result<FileStamp, PackageReadError> stamp_main_file(int file);
    bool still_there(int parent, int package);

    PackageReadError error(PackageProblem problem, int system_error = 0) const
    {
        return {problem, path_, system_error};
    }
    PackageReadError refused(int system_error) const
    {
        // What was listed a moment ago is gone: a save has exchanged the folder.
        return error(PackageProblem::unreadable, system_error == ENOENT ? written_meanwhile : system_error);
    }

    SystemCalls& calls_;
    const PackageLayout& layout_;
    std::string path_;
    SplitPath split_;
};

ReadResult PackageReader::read()
{
    const Descriptor parent = open_folder_to_pass(calls_, split_.folder);
    if (!parent)
        return fail(
            error(errno == ENOENT || errno == ENOTDIR ? PackageProblem::notFound : PackageProblem::unreadable, errno));
    const Descriptor package = open_folder_at(calls_, parent.get(), split_.name);
    if (!package && errno == ENOENT)
        return fail(error(PackageProblem::notFound, errno));
    if (!package && (errno == ENOTDIR || errno == ELOOP))
        return fail(error(PackageProblem::notAPackage, errno));
    if (!package)
        return fail(error(PackageProblem::unreadable, errno));
    auto read = read_opened(package.get());
    if (!still_there(parent.get(), package.get()))
        return fail(error(PackageProblem::unreadable, written_meanwhile));
    return read;
}

bool PackageReader::still_there(int parent, int package)
{
    struct stat opened = {};
    struct stat present = {};
    return calls_.status(package, opened) == 0 && calls_.status_at(parent, split_.name.c_str(), present) == 0
        && opened.st_dev == present.st_dev && opened.st_ino == present.st_ino;
}

ReadResult PackageReader::read_opened(int package)
{
    PackageRead read;
    auto listing = list_package(calls_, package, layout_);
    if (!listing)
        return fail(refused(listing.error()));
    if (!listing->mainFile)
        return fail(error(PackageProblem::missingMainFile));
    const auto stamp = read_main_file(package, read.contents.mainText);
    if (!stamp)
        return fail(stamp.error());
    listing->mainFile = *stamp;

    const auto tree = std::make_shared<TreeLocation>(path_);
    for (const auto& [name, each] : listing->attachments)
        read.contents.attachments.emplace_hint(
            read.contents.attachments.end(), name, Blob(StoredFile{tree, layout_.attachmentsFolder, name, each}));
    if (listing->logo)
        read.contents.logo = Blob(StoredFile{tree, "", layout_.logoFile, *listing->logo});
    for (const std::string& entry : listing->unknownEntries)
        if (!is_desktop_litter(entry))
            read.unknownEntries.push_back(entry);
    read.place = std::make_shared<PackagePlace>();
    read.place->tree = tree;
    read.place->fingerprint = {std::move(*listing), sha256(read.contents.mainText)};
    return read;
}

/// Only called for what was a regular file when it was listed, so that opening cannot wake a device.
Result<FileStamp, PackageReadError> PackageReader::read_main_file(int package, std::string& text)
{
    const Descriptor file = open_file(calls_, package, layout_.mainFile.c_str(), O_RDONLY);
    if (!file)
        return fail(refused(errno));
    const auto before = stamp_main_file(file.get());
    if (!before)
        return before;
    const int failed = read_bytes(calls_, file.get(), layout_.mainFileLimit, text);
    if (failed)
        return fail(failed == EFBIG ? error(PackageProblem::tooLarge) : refused(failed));
    const auto after = stamp_main_file(file.get());
    if (after && *before != *after)
        return fail(refused(written_meanwhile));
    return after;
}

Result<FileStamp, PackageReadError> PackageReader::stamp_main_file(int file)
{
    struct stat status = {};
    if (calls_.status(file, status) != 0)
        return fail(refused(errno));
    if (!S_ISREG(status.st_mode))
        return fail(refused(written_meanwhile));
    return stamp_of(status);
}

enum class Backup { none, putBack, busy };

Backup put_back_backup(SystemCalls& calls, const std::string& path, const DocumentLock* held)
{
    const SplitPath split = split_path(path);
    const std::string backup = join_path(split.folder, backup_name(split.name));
    struct stat status = {};
    if (calls.status_at(AT_FDCWD, backup.c_str(), status) != 0 || !S_ISDIR(status.st_mode))
        return Backup::none;
    std::optional<Result<DocumentLock, LockError>> lock;
    if (!held && !lock.emplace(DocumentLock::acquire(path, calls)))
        return Backup::busy; // A save is under way; if its program hangs, the document is still not ours to move.
    return rename_to_free_name(calls, AT_FDCWD, backup, AT_FDCWD, path) == 0 ? Backup::putBack : Backup::busy;
}

} // namespace

ReadResult read_package_folder(
    const std::string& path, const PackageLayout& layout, const DocumentLock* lock, SystemCalls& calls)
{
    const std::string resolved = resolve_document(path);
    bool looked_again = false;
    for (int attempt = 1;; ++attempt) {
        auto read = PackageReader(calls, layout, resolved).read();
        if (read || attempt == attempts)
            return read;
        if (read.error().problem == PackageProblem::notFound) {
            const Backup backup = put_back_backup(calls, resolved, lock);
            // Without a backup the save may just have ended: the document is looked for once more.
            if (backup == Backup::none && std::exchange(looked_again, true))
                return read;
            if (backup != Backup::busy)
                continue;
        } else if (read.error().systemError != written_meanwhile) {
            return read;
        }
        std::this_thread::sleep_for(pause);
    }
}

int clean_leftovers(const PackagePlace& place, const PackageLayout& layout, DisplacedTrees* displaced,
    const DocumentLock&, SystemCalls& calls)
{
    const std::string document = place.tree->path();
    const SplitPath split = split_path(document);
    const Descriptor parent = open_folder(calls, split.folder);
    std::vector<std::string> names;
    if (!parent || calls.list(parent.get(), names) != 0)
        return 0;
    int found = 0;
    for (const std::string& name : names) {
        if (!is_sibling_of(name, split.name) && name != backup_name(split.name))
            continue;
        ++found;
        const auto tree = std::make_shared<TreeLocation>(join_path(split.folder, name));
        const Descriptor folder = open_folder_at(calls, parent.get(), name);
        const auto listing = folder ? list_package(calls, folder.get(), layout) : fail(int{errno});
        if (displaced && listing && listing->mainFile)
            (void)displaced->take(document, tree).ok(); // What cannot be put away now stays until the next time.
        else
            discard_tree(calls, tree, document, layout);
    }
    return found;
}

} // namespace quillfern::platform
