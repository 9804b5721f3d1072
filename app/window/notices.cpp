#include "app/window/notices.h"

#include "app/document/document_words.h"
#include "app/document/open_document.h"

#include <QFileInfo>

namespace quillfern::app {
namespace {

using Action = Notice::Action;
using platform::PackageChange;

const Notice::Button save_as = {QStringLiteral("Save As…"), Action::saveAs};

Notice about_lock(const platform::LockError& error, const QString& name)
{
    return {QStringLiteral("lock"), lock_words(error, name),
        {{QStringLiteral("Duplicate"), Action::duplicate}, {QStringLiteral("Try Again"), Action::tryLock}}};
}

Notice about_change(PackageChange change, const QString& name, const grants::OrgPackage& package)
{
    const QString title = change_words(change, name, package).title + QLatin1Char('.');
    if (change == PackageChange::gone)
        return {QStringLiteral("file-missing"), title + QLatin1Char(' ') + still_here(package) + QLatin1Char('.'),
            {save_as}};
    return {QStringLiteral("warning"), title,
        {{QStringLiteral("Reload"), Action::reload}, {QStringLiteral("Keep Both"), Action::keepBoth}, save_as}};
}

/// A document that was never saved has nothing to go back to.
Notice about_recovered(bool has_file)
{
    const QString kept = QStringLiteral("These changes were kept when Quillfern closed unexpectedly. ");
    if (!has_file)
        return {QStringLiteral("info"), kept + QStringLiteral("They are in no file yet."),
            {{QStringLiteral("Save…"), Action::save}}};
    return {QStringLiteral("info"), kept + QStringLiteral("The file doesn’t have them yet."),
        {{QStringLiteral("Save"), Action::save}, {QStringLiteral("Revert to Saved"), Action::revert}}};
}

} // namespace

std::optional<Notice> notice_for(const OpenDocument& document)
{
    const DocumentFile& disk = document.disk();
    const QString name = QFileInfo(disk.path()).fileName();
    if (!disk.is_writable() && disk.lock_error())
        return about_lock(*disk.lock_error(), name);
    if (document.disk_change() != PackageChange::same)
        return about_change(document.disk_change(), name, document.document().package());
    if (document.trouble()) {
        const DocumentWords words = failure_words(*document.trouble(), name);
        return Notice{QStringLiteral("warning"), words.title + QStringLiteral(". ") + words.message,
            {{QStringLiteral("Save"), Action::save}, save_as}};
    }
    if (!document.recovery().problem().isEmpty())
        return Notice{QStringLiteral("warning"), document.recovery().problem(), {save_as}};
    if (document.is_held_back())
        return about_recovered(disk.is_named());
    return std::nullopt;
}

} // namespace quillfern::app
