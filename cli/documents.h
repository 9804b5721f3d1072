#pragma once

#include "base/result.h"
#include "grants/org_package.h"

#include <string>

/// Packages on the disk. A failure is a sentence for a person.
namespace quillfern::cli {

Result<grants::OpenedPackage, std::string> open_organization(
    const std::string& path, const platform::DocumentLock* lock = nullptr);

/// Needed to save a document over its previous state; taken before it is opened.
Result<platform::DocumentLock, std::string> lock_document(const std::string& path);

/// Why a document is not written over itself when its reading has left something out: the rest stands nowhere else.
std::string loss_refusal(const ReadNotes& notes);

/// Saves the document where it was opened, unless something in it could not be read.
Result<Done, std::string> save_organization(grants::OpenedPackage& document, const platform::DocumentLock& lock);

/// The package goes to a new place; a package that stands there is replaced only when `force` is set, anything else
/// never.
Result<Done, std::string> write_organization(const grants::OrgPackage& package, const std::string& path, bool force);

} // namespace quillfern::cli
