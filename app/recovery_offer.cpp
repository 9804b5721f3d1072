#include "app/recovery_offer.h"

#include "app/application.h"
#include "app/window/revert_sheet.h"
#include "desktop/alert.h"
#include "grants/recovery_store.h"
#include "platform/clock.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

namespace quillfern::app {
namespace {

using Found = std::vector<grants::FoundRecovery>;

QString line_of(const grants::FoundRecovery& found)
{
    const QString title =
        found.info.title.empty() ? QStringLiteral("Untitled") : QString::fromStdString(found.info.title);
    const QString file = QFileInfo(QFile::decodeName(QByteArray::fromStdString(found.info.path))).fileName();
    const QString name = file.isEmpty() ? title : QStringLiteral("%1, “%2”").arg(title, file);
    return QStringLiteral("%1 (%2)").arg(name, moment_words(found.info.savedAt, platform::now()));
}

void recover(Application& application, Found& found, const QPointer<QWidget>& asking)
{
    for (grants::FoundRecovery& each : found)
        application.open_recovered(std::move(each), asking);
}

} // namespace

void offer_recovery(Application& application, QWidget* asking)
{
    const auto found = std::make_shared<Found>(grants::RecoverySlot::find(application.storage().recovery_folder()));
    if (found->empty())
        return;
    QStringList lines;
    for (const grants::FoundRecovery& each : *found)
        lines.append(line_of(each));
    desktop::choose(
        {QStringLiteral("Quillfern closed unexpectedly"),
            QStringLiteral("Changes that weren’t saved were kept:\n%1\n\nRecovering them opens them in a "
                           "window; no file is changed until you save. If you cancel, this is offered again "
                           "next time.")
                .arg(lines.join(QLatin1Char('\n'))),
            {}},
        {QStringLiteral("info"), desktop::IconTile::Tone::accent,
            {{QStringLiteral("Recover"), desktop::ButtonKind::primary,
                [&application, found, above = QPointer<QWidget>(asking)] { recover(application, *found, above); }}}},
        asking);
}

} // namespace quillfern::app
