#include "desktop/save_panel.h"

#include "desktop/type.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace quillfern::desktop {
namespace {

const QString folder_key = QStringLiteral("save/folder");

QString last_folder()
{
    const QString folder = QSettings().value(folder_key).toString();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& candidate : {folder, documents})
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir())
            return candidate;
    return QDir::homePath();
}

QString with_suffix(const QString& path, const QString& suffix)
{
    return path.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive) ? path : path + QLatin1Char('.') + suffix;
}

} // namespace

SavePanel::SavePanel(const QString& kind, const QString& suffix, const QString& name, QWidget* parent)
    : QFileDialog(parent)
{
    setObjectName(QStringLiteral("savePanel"));
    setOption(DontUseNativeDialog); // first: the options below then reach the toolkit's own dialog
    setOption(DontConfirmOverwrite);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setWindowTitle(QStringLiteral("Save"));
    setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind, suffix));
    resize(scaled(760), scaled(480));
    setDirectory(last_folder());
    selectFile(name);
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QFileDialog::fileSelected, this, [this, suffix](const QString& chosen) {
        QSettings().setValue(folder_key, QFileInfo(chosen).absolutePath());
        Q_EMIT path_chosen(with_suffix(chosen, suffix));
    });
}

} // namespace quillfern::desktop
