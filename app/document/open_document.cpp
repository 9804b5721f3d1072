#include "app/document/open_document.h"

#include "app/document/storage.h"

#include <utility>

namespace quillfern::app {
namespace {

using platform::PackageChange;

} // namespace

OpenDocument::OpenDocument(QuillfernDocument initial, Storage& storage, QObject* parent)
    : QObject(parent), document_(std::move(initial)), disk_(storage.versions()), recovery_(document_, disk_, storage)
{
    connect_parts(storage.pace().idle);
}

OpenDocument::OpenDocument(grants::OpenedPackage opened, const QString& path, Storage& storage, QObject* parent)
    : QObject(parent), document_({std::move(opened.package)}), disk_(storage.versions()),
      recovery_(document_, disk_, storage), notes_(std::move(opened.notes))
{
    connect_parts(storage.pace().idle);
    disk_.settle(path, std::move(opened.place));
}

void OpenDocument::connect_parts(std::chrono::milliseconds idle)
{
    idle_.setSingleShot(true);
    idle_.setInterval(idle);
    connect(&idle_, &QTimer::timeout, this, &OpenDocument::save_by_itself);
    connect(&document_, &Document::changed, this, [this] { idle_.start(); });
    connect(&disk_, &DocumentFile::path_changed, &watch_, &DiskWatch::watch);
    connect(&watch_, &DiskWatch::stirred, this, &OpenDocument::look_at_disk);
}

QString OpenDocument::title() const
{
    return document_title(document_.package(), disk_.path());
}

bool OpenDocument::saves_itself() const
{
    return disk_.is_named() && disk_.is_writable() && disk_change_ == PackageChange::same && !held_back_;
}

void OpenDocument::save(Asked asked)
{
    disk_.save(document_.value(), [this, asked](const SaveReport& report) { take(report, asked); });
}

void OpenDocument::save_as(const QString& path, platform::Existing existing)
{
    disk_.save_as(document_.value(), path, existing, [this](const SaveReport& report) { take(report, Asked::byUser); });
}

void OpenDocument::save_by_itself()
{
    if (document_.is_modified() && saves_itself() && !disk_.is_busy())
        save(Asked::byItself);
}

void OpenDocument::take(const SaveReport& report, Asked asked)
{
    if (report.result)
        take_success(report, asked);
    else
        take_failure(report.result.error(), asked);
    // Edited during the save, or to be tried again: the disk may have room by then. Each try that was not flushed
    // leaves a tree behind, so that is for the next edit.
    const bool flushed = report.result || report.result.error().error.problem != platform::SaveProblem::notFlushed;
    if (document_.is_modified() && flushed)
        idle_.start();
    Q_EMIT condition_changed();
}

void OpenDocument::take_success(const SaveReport& report, Asked asked)
{
    held_back_ = held_back_ && asked == Asked::byItself;
    disk_change_ = PackageChange::same;
    vanished_.reset();
    trouble_.reset();
    document_.set_saved(report.written);
    Q_EMIT saved(*report.result, asked);
}

void OpenDocument::take_failure(const SaveFailure& failure, Asked asked)
{
    const platform::SaveProblem problem = failure.error.problem;
    if (problem == platform::SaveProblem::changedOnDisk)
        set_disk_change(PackageChange::changed);
    else if (problem == platform::SaveProblem::gone)
        set_disk_change(PackageChange::gone);
    else if (asked == Asked::byItself)
        trouble_ = failure;
    Q_EMIT save_failed(failure, asked);
}

void OpenDocument::take_recovered(grants::RecoverySlot slot, grants::RecoveredDocument recovered)
{
    recovery_.adopt(std::move(slot));
    notes_.insert(notes_.end(), recovered.notes.begin(), recovered.notes.end());
    if (disk_.is_named())
        document_.edit(QStringLiteral("Recover Changes"), std::move(recovered.package));
    else
        document_.set_unsaved();
    held_back_ = document_.is_modified();
    if (!held_back_)
        recovery_.discard(); // it was saved after all
    Q_EMIT condition_changed();
}

Result<Done, grants::PackageError> OpenDocument::reload()
{
    auto opened = disk_.read_again();
    if (!opened)
        return fail(opened.error());
    notes_ = std::move(opened->notes);
    vanished_.reset();
    document_.edit(QStringLiteral("Reload"), opened->package);
    document_.set_saved({std::move(opened->package)});
    set_disk_change(PackageChange::same);
    return Done{};
}

void OpenDocument::look_at_disk()
{
    set_disk_change(disk_.look());
}

void OpenDocument::set_disk_change(PackageChange change)
{
    if (change == std::exchange(disk_change_, change))
        return;
    // While the file is gone nothing but this window holds the value: closing asks, and a snapshot is kept.
    if (change == PackageChange::gone && document_.saved()) {
        vanished_ = document_.saved();
        document_.set_unsaved();
    } else if (change != PackageChange::gone && vanished_) {
        document_.set_saved(*std::exchange(vanished_, std::nullopt));
    }
    Q_EMIT condition_changed();
}

void OpenDocument::put_in_safety()
{
    disk_.finish();
    recovery_.write_now();
    save_by_itself();
    disk_.finish();
}

} // namespace quillfern::app
