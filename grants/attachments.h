#pragma once

#include "grants/org_package.h"

#include <string>
#include <string_view>
#include <vector>

/// Files kept with grants, and the logo: edits from one package value to the next.
namespace quillfern::grants {

/// In bytes: 100 MiB, so that the document stays easy to move and back up.
constexpr std::int64_t largest_attachment = 104'857'600;

enum class AttachmentError { tooBig, empty, noSuchGrant };

struct AddedAttachment {
    OrgPackage package;
    Attachment attachment;
};

/// The bytes are stored under a fresh name that keeps only the extension of `original_name`: a name of the user's could
/// clash with another, or not be allowed on another disk.
Result<AddedAttachment, AttachmentError> add_attachment(const OrgPackage& package, const Uuid& grant, std::string bytes,
    std::string_view original_name, AttachmentKind kind, const FreshValues& fresh);

/// Drops the record and its bytes. The bytes stay when another record names them; without such a grant or attachment
/// the package comes back as it is.
OrgPackage remove_attachment(const OrgPackage& package, const Uuid& grant, const Uuid& attachment);

Result<Shared<std::string>, platform::BlobError> read_attachment(
    const OrgPackage& package, std::string_view stored_name);

/// Stored names of the attachments whose bytes cannot be read any more, because another program has removed or changed
/// their files.
std::vector<std::string> lost_attachments(const OrgPackage& package);

/// The package without the files that are lost, the logo's included: what `present` (null: nothing) has under their
/// names takes their place, the rest is left out. Their records stay, as of any file that is missing.
OrgPackage without_lost_files(const OrgPackage& package, const OrgPackage* present);

OrgPackage with_logo(OrgPackage package, std::string png);
OrgPackage without_logo(OrgPackage package);

} // namespace quillfern::grants
