#include "app/window/document_mover.h"

#include "app/application.h"
#include "app/document/document_words.h"
#include "app/document/open_document.h"
#include "app/state/window_model.h"
#include "app/window/rename_sheet.h"
#include "desktop/alert.h"
#include "desktop/package_dialog.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace quillfern::app {

DocumentMover::DocumentMover(OpenDocument& document, WindowModel& model, Application& application, QWidget& window)
    : QObject(&window), document_(document), model_(model), application_(application), window_(window)
{
}

void DocumentMover::rename()
{
    auto* sheet = new RenameSheet(document_name(document_.disk().path()), &window_);
    connect(sheet, &RenameSheet::name_chosen, this, [this](const QString& chosen) {
        move_file(QFileInfo(document_.disk().path()).dir().filePath(with_suffix(chosen)));
    });
    sheet->open();
}

void DocumentMover::move_to()
{
    const QFileInfo file(document_.disk().path());
    auto* panel = new desktop::FolderChooser(
        QLatin1String(document_suffix), QStringLiteral("Move To"), QStringLiteral("Move"), &window_);
    connect(panel, &desktop::FolderChooser::folder_chosen, this,
        [this, name = file.fileName()](const QString& folder) { move_file(QDir(folder).filePath(name)); });
    panel->open();
}

void DocumentMover::move_file(const QString& path)
{
    const QString from = document_.disk().path();
    if (path == from)
        return;
    const auto moved = document_.disk().move_to(document_.document().value(), path);
    if (moved)
        return tell_moved(from, path);
    document_.look_at_disk();
    if (document_.disk_change() != platform::PackageChange::same)
        return Q_EMIT changed_outside(document_.disk_change());
    DocumentWords words = failure_words(moved.error(), QFileInfo(path).fileName());
    words.title = QStringLiteral("Couldn’t move “%1”").arg(QFileInfo(from).fileName());
    desktop::show_alert({words.title, words.message, {}}, &window_);
}

void DocumentMover::tell_moved(const QString& from, const QString& to)
{
    const QFileInfo now(to);
    application_.recent_documents().rename(from, to);
    const bool renamed = now.path() == QFileInfo(from).path();
    const QString done = renamed ? QStringLiteral("Renamed to “%1”.").arg(now.fileName())
                                 : QStringLiteral("Moved to “%1”.").arg(now.dir().dirName());
    model_.tell(done.toStdString());
}

} // namespace quillfern::app
