#include "app/document/document_file.h"

#include "grants/org_package.h"
#include "platform/clock.h"
#include "platform/sha256.h"
#include "platform/versions_store.h"

#include <QFile>

#include <utility>

namespace quillfern::app {
namespace {

using platform::DocumentLock;
using platform::SaveError;
using platform::SaveOutcome;

std::string bytes_of(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

/// The document's real path: the user's may lead through links, and two windows must know that they mean one document.
QString path_of(const platform::PackagePlace& place)
{
    return QFile::decodeName(QByteArray::fromStdString(place.tree->path()));
}

} // namespace

DocumentFile::DocumentFile(platform::VersionsStore& versions, QObject* parent)
    : QObject(parent), versions_(versions) { }

DocumentFile::~DocumentFile() = default;

void DocumentFile::settle(const QString& path, std::shared_ptr<platform::PackagePlace> place)
{
    path_ = path;
    know(std::move(place));
    if (!lock_)
        try_lock();
    if (lock_)
        leftovers_ = grants::clear_leftovers(*place_, *lock_, &versions_);
    Q_EMIT path_changed(path_);
}

void DocumentFile::know(std::shared_ptr<platform::PackagePlace> place)
{
    place_ = std::move(place);
    base_ = platform::hex(place_->fingerprint.mainHash);
    Q_EMIT base_changed();
}

bool DocumentFile::try_lock()
{
    auto lock = DocumentLock::acquire(bytes_of(path_));
    if (!lock) {
        lock_error_ = lock.error();
        return false;
    }
    lock_ = std::make_shared<DocumentLock>(*std::move(lock));
    lock_error_.reset();
    return true;
}

void DocumentFile::save(const QuillfernDocument& document, Done done)
{
    finish();
    saving_.start(
        [this, document, place = place_, lock = lock_] {
            auto result = grants::write_package(document.package, *place, *lock, &versions_);
            versions_.prune(place->tree->path(), platform::now());
            if (!result)
                return SaveReport{document, fail(SaveFailure{std::nullopt, result.error()})};
            return SaveReport{document, *std::move(result)};
        },
        [this, done = std::move(done)](const SaveReport& report) {
            know(place_);
            done(report);
        });
}

void DocumentFile::save_as(
    const QuillfernDocument& document, const QString& path, platform::Existing existing, Done done)
{
    finish();
    std::shared_ptr<DocumentLock> lock = path == path_ ? lock_ : nullptr;
    if (!lock) {
        auto acquired = DocumentLock::acquire(bytes_of(path));
        if (!acquired)
            return done({document, fail(SaveFailure{acquired.error(), {}})});
        lock = std::make_shared<DocumentLock>(*std::move(acquired));
    }
    auto place = std::make_shared<std::shared_ptr<platform::PackagePlace>>();
    saving_.start(
        [this, document, path, existing, lock, place] {
            auto result = grants::write_package_as(
                document.package, bytes_of(path), existing, platform::Ownership::document, *lock, &versions_);
            if (!result)
                return SaveReport{document, fail(SaveFailure{std::nullopt, result.error()})};
            *place = result->place;
            return SaveReport{document, std::move(result->outcome)};
        },
        [this, lock, place, done = std::move(done)](const SaveReport& report) {
            if (report.result) {
                lock_ = lock;
                lock_error_.reset();
                know(*place);
                path_ = path_of(*place_);
                Q_EMIT path_changed(path_);
            }
            done(report);
        });
}

Result<quillfern::Done, SaveFailure> DocumentFile::move_to(const QuillfernDocument& document, const QString& path)
{
    finish();
    auto lock = DocumentLock::acquire(bytes_of(path));
    if (!lock)
        return fail(SaveFailure{lock.error(), {}});
    const std::string from = place_->tree->path();
    auto moved = grants::move_package(document.package, place_, bytes_of(path), *lock_, *lock, &versions_);
    if (!moved && moved.error().problem != platform::SaveProblem::notFlushed)
        return fail(SaveFailure{std::nullopt, moved.error()});
    versions_.follow(from, (moved ? *moved : place_)->tree->path());
    lock_ = std::make_shared<DocumentLock>(*std::move(lock));
    know(moved ? *moved : place_);
    path_ = path_of(*place_);
    Q_EMIT path_changed(path_);
    return quillfern::Done{};
}

bool DocumentFile::has_versions() const
{
    return !versions_.versions_of(bytes_of(path_)).empty();
}

grants::RecoveryInfo DocumentFile::recovery_info(const grants::OrgPackage& package, Instant now) const
{
    return {bytes_of(path_), document_title(package, path_).toStdString(), base(), now};
}

platform::PackageChange DocumentFile::look() const
{
    if (!is_named() || is_busy())
        return platform::PackageChange::same;
    return grants::compare_with_disk(*place_);
}

ReadResult DocumentFile::read_again()
{
    finish();
    auto opened = grants::read_package(bytes_of(path_), lock_.get(), &versions_);
    if (!opened)
        return opened;
    grants::hand_over(*place_, *opened->place); // undo steps still read from it
    know(opened->place);
    return opened;
}

} // namespace quillfern::app
