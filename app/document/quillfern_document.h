#pragma once

#include "grants/org_package.h"

#include <QString>

namespace quillfern::app {

/// The value of one document: everything that a save writes. An edit replaces `package` as a whole.
struct QuillfernDocument {
    grants::OrgPackage package;

    friend bool operator==(const QuillfernDocument&, const QuillfernDocument&) = default;
};

/// The ending of a document's name, without the dot; and its type for the desktop.
inline constexpr const char* document_suffix = "quillfern";
inline constexpr const char* document_type = "com.harrowgate.quillfern.org";

/// What a new file starts with, from the user's settings.
struct NewFileDefaults {
    std::int64_t fiscalStart = 1; ///< the fiscal year's first month
    std::int64_t draftLead = 10; ///< days before a report is due to start its draft
};

QuillfernDocument new_document(const NewFileDefaults& defaults);

/// The same document with handles of its own to the bytes of its attachments, for a copy that will live elsewhere.
QuillfernDocument duplicate_of(const QuillfernDocument& document);

/// What a window calls the document: the organization, else its file (which may be empty), else that it has no name.
QString document_title(const grants::OrgPackage& package, const QString& path);

/// The file's name without folder and ending.
QString document_name(const QString& path);

/// "Pantry.quillfern" for "Pantry", and for itself.
QString with_suffix(const QString& name);

/// Characters that file systems forbid are left out of an organization's name.
QString proposed_file_name(const grants::OrgPackage& package);

} // namespace quillfern::app
