#include "grants/attachments.h"

#include "platform/hidden_names.h"
#include "platform/lower_case.h"

#include <algorithm>

namespace quillfern::grants {
namespace {

auto find_grant(GrantFile& file, const Uuid& id)
{
    return std::find_if(
        file.grants.begin(), file.grants.end(), [&](const Shared<Grant>& each) { return each->id == id; });
}

/// Without its dot; empty when the name has none. A leading dot hides a file and begins no extension.
std::string_view extension_of(std::string_view name)
{
    name.remove_prefix(name.find_last_of('/') + 1);
    const std::size_t dot = name.find_last_of('.');
    return dot == std::string_view::npos || dot == 0 ? "" : name.substr(dot + 1);
}

std::string stored_name(const Uuid& id, std::string_view original_name)
{
    constexpr std::size_t longest_file_name = 255; // bytes, on every common file system
    const std::string stem = id.lower_text();
    const std::string extension = platform::lower_case(extension_of(original_name));
    const std::string name = stem + '.' + extension;
    const bool usable = !extension.empty() && name.size() <= longest_file_name && platform::is_file_name(name);
    return usable ? name : stem;
}

bool is_named(const GrantFile& file, const std::string& stored_name)
{
    return std::any_of(file.grants.begin(), file.grants.end(), [&](const Shared<Grant>& grant) {
        return std::any_of(grant->attachments.begin(), grant->attachments.end(),
            [&](const Attachment& each) { return each.storedName == stored_name; });
    });
}

} // namespace

Result<AddedAttachment, AttachmentError> add_attachment(const OrgPackage& package, const Uuid& grant, std::string bytes,
    std::string_view original_name, AttachmentKind kind, const FreshValues& fresh)
{
    const auto size = static_cast<std::int64_t>(bytes.size());
    if (size == 0)
        return fail(AttachmentError::empty);
    if (size > largest_attachment)
        return fail(AttachmentError::tooBig);
    OrgPackage changed = package;
    const auto found = find_grant(changed.file, grant);
    if (found == changed.file.grants.end())
        return fail(AttachmentError::noSuchGrant);

    const Uuid id = fresh.uuid();
    const Attachment attachment{.id = id,
        .storedName = stored_name(id, original_name),
        .originalName = std::string(original_name),
        .kind = kind,
        .added = fresh.now,
        .byteCount = size};
    *found = found->with([&](Grant& each) { each.attachments.push_back(attachment); });
    changed.attachments = changed.attachments.with([&](AttachmentBytes& files) {
        files.insert_or_assign(attachment.storedName, platform::Blob(std::move(bytes)));
    });
    return AddedAttachment{std::move(changed), attachment};
}

OrgPackage remove_attachment(const OrgPackage& package, const Uuid& grant, const Uuid& attachment)
{
    OrgPackage changed = package;
    const auto found = find_grant(changed.file, grant);
    if (found == changed.file.grants.end())
        return changed;
    const std::vector<Attachment>& records = (*found)->attachments;
    const auto record =
        std::find_if(records.begin(), records.end(), [&](const Attachment& each) { return each.id == attachment; });
    if (record == records.end())
        return changed;

    const std::string name = record->storedName;
    *found = found->with([&](Grant& each) {
        std::erase_if(each.attachments, [&](const Attachment& other) { return other.id == attachment; });
    });
    if (!is_named(changed.file, name))
        changed.attachments = changed.attachments.with([&](AttachmentBytes& files) { files.erase(name); });
    return changed;
}

Result<Shared<std::string>, platform::BlobError> read_attachment(
    const OrgPackage& package, std::string_view stored_name)
{
    const auto found = package.attachments->find(stored_name);
    if (found == package.attachments->end())
        return fail(platform::BlobError{platform::BlobProblem::missing, 0});
    return found->second.read();
}

std::vector<std::string> lost_attachments(const OrgPackage& package)
{
    std::vector<std::string> names;
    for (const auto& [name, blob] : *package.attachments)
        if (!blob.is_there())
            names.push_back(name);
    return names;
}

OrgPackage without_lost_files(const OrgPackage& package, const OrgPackage* present)
{
    OrgPackage changed = package;
    if (package.logo && !package.logo->is_there())
        changed.logo = present ? present->logo : std::nullopt;
    const std::vector<std::string> lost = lost_attachments(package);
    if (lost.empty())
        return changed;
    changed.attachments = changed.attachments.with([&](AttachmentBytes& files) {
        for (const std::string& name : lost) {
            files.erase(name);
            if (!present)
                continue;
            if (const auto other = present->attachments->find(name); other != present->attachments->end())
                files.emplace(name, other->second);
        }
    });
    return changed;
}

OrgPackage with_logo(OrgPackage package, std::string png)
{
    package.logo = platform::Blob(std::move(png));
    package.file.org.logoFile = logo_file_name;
    return package;
}

OrgPackage without_logo(OrgPackage package)
{
    package.logo.reset();
    package.file.org.logoFile.reset();
    return package;
}

} // namespace quillfern::grants
