#pragma once

#include "app/document/background.h"
#include "app/document/document_source.h"
#include "app/document/quillfern_document.h"
#include "grants/recovery_note.h"
#include "platform/directory_save.h"
#include "platform/document_lock.h"
#include "platform/package_watch.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillfern::platform {
class VersionsStore;
}

namespace quillfern::app {

/// Why a document could not be saved: the name belongs to a document that is open, or the saver's reason.
struct SaveFailure {
    std::optional<platform::LockError> lock;
    platform::SaveError error;
};

/// What became of one save.
struct SaveReport {
    QuillfernDocument written; ///< the value that was to be saved; edits may have gone on since
    Result<platform::SaveOutcome, SaveFailure> result;
};

/// Where one document lives on the disk, and the right to write there.
///
/// Saving runs in the background, one save at a time; what is saved is the value as it was when it was asked for. A
/// document without a path lives nowhere yet. One whose lock somebody else holds can be read, but not written.
class DocumentFile : public QObject {
    Q_OBJECT
public:
    /// `versions` keeps previous states; it outlives the document.
    explicit DocumentFile(platform::VersionsStore& versions, QObject* parent = nullptr);
    ~DocumentFile() override;

    /// The document was read from `path`. Takes the lock if it can be had, and then clears away what crashed saves have
    /// left beside it.
    void settle(const QString& path, std::shared_ptr<platform::PackagePlace> place);

    /// How many states interrupted saves had left beside it, which are with its earlier versions now.
    int leftovers() const { return leftovers_; }

    bool is_named() const { return place_ != nullptr; }
    const QString& path() const { return path_; } ///< empty when it lives nowhere yet

    bool is_writable() const { return !is_named() || lock_; }
    const std::optional<platform::LockError>& lock_error() const { return lock_error_; }

    /// Tries once more for the lock. The disk may have changed meanwhile: then read_again() before editing.
    bool try_lock();

    bool is_busy() const { return saving_.running(); }

    /// Waits for a save that is running, and for what follows from it.
    void finish() { saving_.finish(); }

    using Done = std::function<void(const SaveReport&)>;

    /// To where it lives. Only for a document that is named and writable.
    void save(const QuillfernDocument& document, Done done);

    /// To a new place, where the document lives from then on.
    void save_as(const QuillfernDocument& document, const QString& path, platform::Existing existing, Done done);

    /// To another folder or name, with all that is on the disk; `document` is what it holds. Nothing is replaced.
    Result<quillfern::Done, SaveFailure> move_to(const QuillfernDocument& document, const QString& path);

    /// Whether earlier saves have kept a state.
    bool has_versions() const;

    /// What a snapshot says of where the document lives and what it builds on.
    grants::RecoveryInfo recovery_info(const grants::OrgPackage& package, Instant now) const;

    /// SHA-256 of the records that the disk held when they were read or saved last, 64 digits; empty without a file.
    const std::string& base() const { return base_; }

    /// Whether the disk still holds what was read or saved last. While a save is running nothing counts as changed.
    platform::PackageChange look() const;

    /// What the disk holds now. From then on it counts as known.
    ReadResult read_again();

Q_SIGNALS:
    void path_changed(const QString& path);
    void base_changed(); ///< it was read or saved, or has moved: what is known of the disk is new

private:
    SaveReport report(
        const QuillfernDocument& document, Result<platform::SaveOutcome, platform::SaveError> result) const;

    void know(std::shared_ptr<platform::PackagePlace> place);

    platform::VersionsStore& versions_;
    QString path_;
    std::string base_; ///< a copy: a save that is running changes the place
    std::shared_ptr<platform::PackagePlace> place_;
    std::shared_ptr<platform::DocumentLock> lock_;
    std::optional<platform::LockError> lock_error_;
    int leftovers_ = 0;
    Background<SaveReport> saving_{*this};
};

} // namespace quillfern::app
