#pragma once

#include "grants/org_package.h"

#include <QString>

namespace quillfern::app {

using ReadResult = Result<grants::OpenedPackage, grants::PackageError>;

/// The sample organization as a new document, dated around `today`.
grants::OrgPackage sample_package(const grants::Day& today);

/// Where the program gets its documents from: the disk, and the sample that it makes itself.
class DocumentSource {
public:
    DocumentSource() = default;
    DocumentSource(const DocumentSource&) = delete;
    DocumentSource& operator=(const DocumentSource&) = delete;
    virtual ~DocumentSource() = default;

    /// `path` is a package's absolute path.
    virtual ReadResult read(const QString& path);

    virtual grants::OrgPackage sample(const grants::Day& today);
};

} // namespace quillfern::app
