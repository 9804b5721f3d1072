#include "app/document/recovery_keeper.h"

#include "app/document/document.h"
#include "app/document/document_file.h"
#include "app/document/storage.h"
#include "platform/clock.h"

#include <system_error>
#include <utility>

namespace quillfern::app {

RecoveryKeeper::RecoveryKeeper(Document& document, DocumentFile& disk, const Storage& storage)
    : document_(document), disk_(disk), slot_(storage.recovery_folder())
{
    pause_.setSingleShot(true);
    pause_.setInterval(storage.pace().pause);
    latest_.setSingleShot(true);
    latest_.setInterval(storage.pace().longest);
    connect(&pause_, &QTimer::timeout, this, &RecoveryKeeper::write);
    connect(&latest_, &QTimer::timeout, this, &RecoveryKeeper::write);
    connect(&document_, &Document::changed, this, &RecoveryKeeper::take_change);
    connect(&document_, &Document::modified_changed, this, &RecoveryKeeper::take_modified);
    connect(&disk_, &DocumentFile::base_changed, this, &RecoveryKeeper::take_change);
}

RecoveryKeeper::~RecoveryKeeper() = default;

void RecoveryKeeper::adopt(grants::RecoverySlot slot)
{
    discard();
    slot_ = std::move(slot);
}

void RecoveryKeeper::take_change()
{
    if (!document_.is_modified())
        return;
    pause_.start();
    if (!latest_.isActive())
        latest_.start();
}

void RecoveryKeeper::take_modified(bool modified)
{
    if (modified)
        take_change();
    else
        discard();
}

void RecoveryKeeper::write()
{
    pause_.stop();
    latest_.stop();
    again_ = writing_.running();
    if (again_)
        return;
    if (!document_.is_modified())
        return;
    writing_.start(
        [this, package = document_.package(), info = disk_.recovery_info(document_.package(), platform::now())] {
            return slot_.write(package, info);
        },
        [this](const Written& written) { take(written); });
}

void RecoveryKeeper::write_now()
{
    again_ = false;
    writing_.finish();
    write();
    writing_.finish();
}

void RecoveryKeeper::discard()
{
    again_ = false;
    writing_.finish();
    pause_.stop();
    latest_.stop();
    slot_.discard();
    set_problem({});
}

void RecoveryKeeper::take(const Written& written)
{
    if (std::exchange(again_, false))
        write();
    else if (!written)
        take_change(); // tried again soon
    set_problem(written ? QString()
                        : QStringLiteral("Changes can’t be kept safe against a crash (%1). Save them soon.")
                              .arg(QString::fromStdString(std::generic_category().message(written.error()))));
}

void RecoveryKeeper::set_problem(const QString& problem)
{
    if (problem == std::exchange(problem_, problem))
        return;
    Q_EMIT problem_changed();
}

} // namespace quillfern::app
