#include "app/export/file_export.h"

#include "app/document/save_words.h"
#include "app/export/export_sheet.h"
#include "desktop/alert.h"
#include "desktop/qt_text.h"
#include "desktop/save_panel.h"
#include "platform/clock.h"
#include "platform/file_save.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace quillfern::app {
namespace {

using desktop::to_qt;
using platform::Overwrite;

/// One file on its way to the disk.
struct Saving {
    std::string text;
    QString path;
    QPointer<QWidget> window;
    Saved saved;
};

void save(const Saving& saving, Overwrite overwrite);

void ask_to_replace(const Saving& saving)
{
    const QFileInfo file(saving.path);
    desktop::ask_before(
        {QStringLiteral("Replace “%1”?").arg(file.fileName()),
            QStringLiteral("A file of this name is in “%1” already. Replacing it removes what is in it.")
                .arg(file.dir().dirName()),
            {}},
        QStringLiteral("Replace"), saving.window, [saving] { save(saving, Overwrite::replaceFile); });
}

void save(const Saving& saving, Overwrite overwrite)
{
    const auto done = platform::save_file(QFile::encodeName(saving.path).toStdString(), saving.text, overwrite);
    const QString name = QFileInfo(saving.path).fileName();
    if (done)
        return saving.saved(name);
    if (done.error().problem == platform::SaveProblem::exists && overwrite == Overwrite::refuse)
        return ask_to_replace(saving);
    const SaveWords words = save_words(done.error(), name.toStdString());
    desktop::show_alert({to_qt(words.title), to_qt(words.message), {}}, saving.window);
}

void ask_where(
    const grants::GrantFile& file, const ExportChoices& choices, const QPointer<QWidget>& window, const Saved& saved)
{
    const bool calendar = choices.kind == ExportKind::calendar;
    auto* panel = new desktop::SavePanel(calendar ? QStringLiteral("Calendar files") : QStringLiteral("Spreadsheets"),
        to_qt(export_suffix(choices.kind)), to_qt(export_file_name(file, choices)), window);
    QObject::connect(panel, &desktop::SavePanel::path_chosen, panel, [=](const QString& path) {
        save({export_text(file, choices, platform::now()), path, window, saved}, Overwrite::refuse);
    });
    panel->open();
}

} // namespace

QDialog* start_export(const grants::GrantFile& file, ExportKind kind, QWidget* window, const Saved& saved)
{
    auto* sheet = new ExportSheet(file, kind, window);
    QObject::connect(sheet, &ExportSheet::save_requested, sheet,
        [=, above = QPointer<QWidget>(window)](
            const ExportChoices& choices) { ask_where(file, choices, above, saved); });
    sheet->open();
    return sheet;
}

} // namespace quillfern::app
