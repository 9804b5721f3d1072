#include "grants/grant_file_json.h"
#include "grants/recovery_store.h"
#include "platform/file_bytes.h"
#include "platform/random_uuid.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>

namespace quillfern::grants {
namespace {

namespace fs = std::filesystem;
using platform::Blob;

constexpr std::int64_t longest_note = 16 * 1024 * 1024; // bytes; a line an attachment
constexpr std::int64_t longest_records = 256 * 1024 * 1024; // as for a document

/// "blob-12" is 12.
std::int64_t number_of(const std::string& name)
{
    const std::size_t hyphen = name.find_last_of('-');
    return hyphen == std::string::npos ? 0 : std::strtoll(name.c_str() + hyphen + 1, nullptr, 10);
}

std::string reason_of(const GrantFileError& error)
{
    const auto* read = std::get_if<ReadError>(&error);
    return read ? read->text() : "It was written by a newer version.";
}

bool is_same_file(const Blob& a, const Blob& b)
{
    const platform::BlobSource left = a.source();
    const platform::BlobSource right = b.source();
    const auto* one = std::get_if<platform::StoredFile>(&left);
    const auto* other = std::get_if<platform::StoredFile>(&right);
    return one && other && platform::same_size_and_time(one->stamp, other->stamp);
}

} // namespace

Result<std::string, int> RecoverySlot::read_file(const std::string& name, std::int64_t limit)
{
    std::string text;
    const platform::Descriptor file = platform::open_file(*calls_, AT_FDCWD, folder_->inside(name).c_str(), O_RDONLY);
    if (!file)
        return fail(int{errno});
    if (const int error = platform::read_bytes(*calls_, file.get(), limit, text))
        return fail(error);
    return text;
}

Result<RecoveryNote, int> RecoverySlot::read_note()
{
    const auto text = read_file(RecoveryFolder::note, longest_note);
    if (!text)
        return fail(text.error());
    auto note = parse_recovery_note(*text);
    if (!note)
        return fail(EBADMSG);
    return *std::move(note);
}

std::vector<FoundRecovery> RecoverySlot::find(const std::string& folder, platform::SystemCalls& calls)
{
    std::vector<FoundRecovery> found;
    std::error_code error;
    for (fs::directory_iterator each(folder, error), end; !error && each != end; each.increment(error)) {
        RecoverySlot slot(folder, calls);
        slot.folder_ = RecoveryFolder::take_over(calls, each->path());
        if (!slot.folder_)
            continue;
        auto note = slot.read_note();
        if (!note && note.error() == ENOENT)
            slot.folder_->abandon_if_dead();
        if (!note)
            continue;
        const RecoveryInfo info = note->info;
        slot.note_ = *std::move(note);
        found.push_back({info, std::move(slot)});
    }
    std::sort(found.begin(), found.end(),
        [](const FoundRecovery& a, const FoundRecovery& b) { return a.info.savedAt < b.info.savedAt; });
    return found;
}

Result<RecoveredDocument, std::string> RecoverySlot::read(const OrgPackage* saved)
{
    auto note = read_note();
    if (!note)
        return fail(folder_->inside(RecoveryFolder::note) + ": " + std::generic_category().message(note.error()));
    auto text = read_file(note->records, longest_records);
    if (!text)
        return fail(folder_->inside(note->records) + ": " + std::generic_category().message(text.error()));
    auto read = read_grant_file(*std::move(text), {platform::random_uuid, note->info.savedAt});
    if (!read)
        return fail(folder_->inside(note->records) + ": " + reason_of(read.error()));
    RecoveredDocument document;
    document.package.file = std::move(read->file);
    document.notes = std::move(read->notes);
    files_ = std::max(files_, number_of(note->records));
    read_blobs(*note, saved, document);
    note_ = *std::move(note);
    return document;
}

void RecoverySlot::read_blobs(const RecoveryNote& note, const OrgPackage* saved, RecoveredDocument& document)
{
    AttachmentBytes attachments;
    for (const auto& [name, file] : note.blobs) {
        const auto own = saved ? saved->attachments->find(name) : AttachmentBytes::const_iterator();
        const bool has_own = saved && own != saved->attachments->end();
        if (const auto blob = read_blob(file, has_own ? &own->second : nullptr))
            attachments.emplace(name, *blob);
        else
            document.notes.push_back("The attached file “" + name + "” couldn’t be found.");
    }
    document.package.attachments = std::move(attachments);
    if (note.logo)
        document.package.logo = read_blob(*note.logo, saved && saved->logo ? &*saved->logo : nullptr);
}

/// `own` is what the document's package has of that name, if anything: it is preferred when it is the same, since it
/// outlives the snapshot.
std::optional<Blob> RecoverySlot::read_blob(const std::string& file, const Blob* own)
{
    std::optional<Blob> blob = file.empty() ? std::nullopt : blob_in(file);
    if (own && (file.empty() || (blob && is_same_file(*blob, *own))))
        blob = *own;
    if (blob && !file.empty())
        blobs_.emplace_back(*blob, file);
    return blob;
}

/// Absent when the file is not there.
std::optional<Blob> RecoverySlot::blob_in(const std::string& name)
{
    struct stat status = {};
    if (calls_->status_at(AT_FDCWD, folder_->inside(name).c_str(), status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    files_ = std::max(files_, number_of(name));
    return Blob(platform::StoredFile{folder_, "", name, platform::stamp_of(status)});
}

} // namespace quillfern::grants
