#pragma once

#include "grants/attachments.h"
#include "grants/org_package.h"

#include <string>
#include <string_view>

/// What people read when a document or an attachment cannot be had.
namespace quillfern::grants {

constexpr std::string_view product_name = "Quillfern";

struct PackageMessage {
    std::string title; ///< empty: the text stands alone
    std::string text;

    friend bool operator==(const PackageMessage&, const PackageMessage&) = default;
};

/// `file_name` is the document's name with its ending.
PackageMessage package_message(const PackageError& error, std::string_view file_name);

/// One file that was to be attached. `tooBig` has words of its own; the others say that it could not be read.
PackageMessage attachment_message(AttachmentError error, std::string_view file_name);
PackageMessage attachment_unreadable(std::string_view file_name);
PackageMessage nothing_attached(); ///< several files, none of which could be attached

/// The record's file is not in the package.
PackageMessage attachment_missing(std::string_view original_name);

/// One sentence: what was not saved and why, and what was left as it is.
std::string save_error_text(const platform::SaveError& error);

} // namespace quillfern::grants
