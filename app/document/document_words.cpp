#include "app/document/document_words.h"

#include "app/document/save_words.h"
#include "desktop/qt_text.h"
#include "grants/attachments.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <system_error>

namespace quillfern::app {
namespace {

using desktop::to_qt;

QString file_name(const std::string& path)
{
    return QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).fileName();
}

/// What the user called the attachment.
QString original_name(const grants::GrantFile& file, const std::string& stored_name)
{
    for (const auto& grant : file.grants)
        for (const grants::Attachment& attachment : grant->attachments)
            if (attachment.storedName == stored_name)
                return to_qt(attachment.originalName);
    return to_qt(stored_name);
}

QString system_words(int error)
{
    return to_qt(std::generic_category().message(error));
}

} // namespace

DocumentWords failure_words(const SaveFailure& failure, const QString& name)
{
    if (failure.lock)
        return {QStringLiteral("Couldn’t save “%1”").arg(name), lock_words(*failure.lock, name)};
    const SaveWords words = save_words(failure.error, name.toStdString());
    return {to_qt(words.title), to_qt(words.message)};
}

QString lock_words(const platform::LockError& error, const QString& name)
{
    if (!error.held)
        return QStringLiteral("“%1” can’t be reserved for this window (%2: %3), so it can’t be changed here.")
            .arg(name, to_qt(error.path), system_words(error.systemError));
    if (error.holder.process == QCoreApplication::applicationPid())
        return QStringLiteral("“%1” is open in another window of Quillfern.").arg(name);
    if (error.holder.process == 0)
        return QStringLiteral("“%1” is open in another program. You can look at it here, but not change it.").arg(name);
    return QStringLiteral("“%1” is open in another program (process %2 on %3). You can look at it here, but not "
                          "change it.")
        .arg(name)
        .arg(error.holder.process)
        .arg(to_qt(error.holder.host));
}

QString lost_files_words(const grants::OrgPackage& package)
{
    const std::vector<std::string> lost = grants::lost_attachments(package);
    const QString first = lost.empty() ? QStringLiteral("the logo")
                                       : QStringLiteral("“%1”").arg(original_name(package.file, lost.front()));
    const QString more = lost.size() > 1 ? QStringLiteral(" and %1 more").arg(lost.size() - 1) : QString();
    return QStringLiteral("Another program has changed or removed %1%2. Saving anyway takes what is there now in its "
                          "place; what is gone is left out.")
        .arg(first, more);
}

QString still_here(const grants::OrgPackage& package)
{
    return grants::lost_attachments(package).empty() ? QStringLiteral("Everything is still here")
                                                     : QStringLiteral("All but its attached files is still here");
}

DocumentWords change_words(platform::PackageChange change, const QString& name, const grants::OrgPackage& package)
{
    if (change == platform::PackageChange::gone)
        return {QStringLiteral("“%1” isn’t where it was").arg(name),
            QStringLiteral("The file was moved or removed, or its disk is gone. %1: save it somewhere else, or put the "
                           "file back.")
                .arg(still_here(package))};
    return {QStringLiteral("“%1” was changed by another program").arg(name),
        QStringLiteral("Keep Both saves this window’s version beside the other. Reload shows the other version; "
                       "Edit › Undo brings this one back.")};
}

QStringList outcome_sentences(const platform::SaveOutcome& outcome)
{
    QStringList sentences;
    if (!outcome.conflict.empty())
        sentences.append(QStringLiteral("Another program saved the file at the same moment. Its version is kept "
                                        "beside it as “%1”.")
                             .arg(file_name(outcome.conflict)));
    if (!outcome.arrived.empty())
        sentences.append(
            QStringLiteral("Files that another program had put into the document were kept in it: %1.")
                .arg(to_qt(outcome.arrived.front())
                    + (outcome.arrived.size() > 1 ? QStringLiteral(" and %1 more").arg(outcome.arrived.size() - 1)
                                                  : QString())));
    if (!outcome.unknownEntries.empty())
        sentences.append(QStringLiteral("What isn’t part of the document was moved to its earlier versions: %1.")
                             .arg(to_qt(outcome.unknownEntries.front())
                                 + (outcome.unknownEntries.size() > 1
                                         ? QStringLiteral(" and %1 more").arg(outcome.unknownEntries.size() - 1)
                                         : QString())));
    if (outcome.displacedError != 0)
        sentences.append(QStringLiteral("The previous version couldn’t be put with the earlier ones (%1). It stays "
                                        "beside the file, hidden, and is put away at the next save.")
                             .arg(system_words(outcome.displacedError)));
    return sentences;
}

} // namespace quillfern::app
