#pragma once

#include "grants/org_package.h"

#include <QObject>
#include <QString>

namespace quillfern::app {

/// One open organization: its package as one value, and where it came from.
class Document : public QObject {
    Q_OBJECT
public:
    /// A new document; it has no path until it is saved.
    explicit Document(grants::OrgPackage package, QObject* parent = nullptr);

    /// One that was read from `path`, an absolute path.
    Document(grants::OpenedPackage opened, QString path, QObject* parent = nullptr);

    const grants::OrgPackage& package() const { return opened_.package; }
    const grants::GrantFile& file() const { return package().file; }
    const QString& path() const { return path_; }

    /// What reading replaced by a default or left out, one sentence each.
    const ReadNotes& notes() const { return opened_.notes; }

    /// What the window is called: the organization, else the file, else that it has no name yet.
    QString title() const;

private:
    grants::OpenedPackage opened_;
    QString path_;
};

} // namespace quillfern::app
