#pragma once

#include "app/document/document_file.h"
#include "platform/package_watch.h"

#include <QString>
#include <QStringList>

namespace quillfern::app {

struct DocumentWords {
    QString title;
    QString message;
};

/// `name` is the document's, as the user knows it.
DocumentWords failure_words(const SaveFailure& failure, const QString& name);

/// Who has the document, and what that means here; one sentence or two.
QString lock_words(const platform::LockError& error, const QString& name);

/// Which attached files cannot be saved, because others have changed or removed them, and what saving anyway does.
QString lost_files_words(const grants::OrgPackage& package);

/// What the window still holds of a document whose file is gone; attached files are read from it when they are needed.
QString still_here(const grants::OrgPackage& package);

/// What others have done to the file, and what is left of it and of this value.
DocumentWords change_words(platform::PackageChange change, const QString& name, const grants::OrgPackage& package);

/// What a save that succeeded has found and put away, one sentence each; empty: nothing that the user should know.
QStringList outcome_sentences(const platform::SaveOutcome& outcome);

} // namespace quillfern::app
