#include "grants/grant_file_json.h"
#include "grants/recovery_names.h"
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

} // namespace

Result<std::string, int> RecoverySlot::read_file(const std::string& name, std::int64_t limit)
{
    std::string text;
    const platform::Descriptor file = platform::open_file(*calls_, AT_FDCWD, inside(name).c_str(), O_RDONLY);
    if (!file)
        return fail(int{errno});
    if (const int error = platform::read_bytes(*calls_, file.get(), limit, text))
        return fail(error);
    return text;
}

std::optional<RecoveryNote> RecoverySlot::read_note()
{
    const auto text = read_file(recovery::note_name, longest_note);
    return text ? parse_recovery_note(*text) : std::nullopt;
}

std::vector<FoundRecovery> RecoverySlot::find(const std::string& folder, platform::SystemCalls& calls)
{
    std::vector<FoundRecovery> found;
    std::error_code error;
    for (fs::directory_iterator each(folder, error), end; !error && each != end; each.increment(error)) {
        RecoverySlot slot(folder, calls);
        slot.path_ = each->path();
        slot.lock_ = platform::open_file(calls, AT_FDCWD, slot.inside(recovery::lock_name).c_str(), O_RDWR);
        if (!slot.lock_ || calls.lock(slot.lock_.get()) != 0)
            continue;
        if (auto note = slot.read_note())
            found.push_back({std::move(note->info), std::move(slot)});
    }
    std::sort(found.begin(), found.end(),
        [](const FoundRecovery& a, const FoundRecovery& b) { return a.info.savedAt < b.info.savedAt; });
    return found;
}

Result<RecoveredDocument, std::string> RecoverySlot::read(const OrgPackage* saved)
{
    const auto note = read_note();
    if (!note)
        return fail(inside(recovery::note_name) + " can’t be read.");
    auto text = read_file(note->records, longest_records);
    if (!text)
        return fail(inside(note->records) + ": " + std::generic_category().message(text.error()));
    auto read = read_grant_file(*std::move(text), {platform::random_uuid, note->info.savedAt});
    if (!read)
        return fail(inside(note->records) + ": " + reason_of(read.error()));
    RecoveredDocument document;
    document.package.file = std::move(read->file);
    document.notes = std::move(read->notes);
    tree_ = std::make_shared<platform::TreeLocation>(path_);
    files_ = std::max(files_, number_of(note->records));
    read_blobs(*note, saved, document);
    return document;
}

void RecoverySlot::read_blobs(const RecoveryNote& note, const OrgPackage* saved, RecoveredDocument& document)
{
    AttachmentBytes attachments;
    for (const auto& [name, file] : note.blobs) {
        std::optional<Blob> blob;
        if (!file.empty())
            blob = blob_in(file);
        else if (saved && saved->attachments->contains(name))
            blob = saved->attachments->find(name)->second;
        if (blob)
            attachments.emplace(name, *blob);
        else
            document.notes.push_back("The attached file “" + name + "” couldn’t be found.");
    }
    document.package.attachments = std::move(attachments);
    if (note.logo && note.logo->empty())
        document.package.logo = saved ? saved->logo : std::nullopt;
    else if (note.logo)
        document.package.logo = blob_in(*note.logo);
}

/// Absent when the file is not there.
std::optional<Blob> RecoverySlot::blob_in(const std::string& name)
{
    struct stat status = {};
    if (calls_->status_at(AT_FDCWD, inside(name).c_str(), status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    files_ = std::max(files_, number_of(name));
    Blob blob(platform::StoredFile{tree_, "", name, platform::stamp_of(status)});
    blobs_.emplace_back(blob, name);
    return blob;
}

} // namespace quillfern::grants
