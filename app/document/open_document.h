#pragma once

#include "app/document/disk_watch.h"
#include "app/document/document.h"
#include "app/document/document_file.h"
#include "app/document/recovery_keeper.h"

#include <QTimer>

namespace quillfern::app {

class Storage;

/// One open document with everything that keeps it: its value and steps, its file, its snapshot against crashes, saving
/// by itself, and the look at what others do to the file.
class OpenDocument : public QObject {
    Q_OBJECT
public:
    enum class Asked { byUser, byItself };

    OpenDocument(QuillfernDocument initial, Storage& storage, QObject* parent = nullptr);

    /// `path` is where it was read from.
    OpenDocument(grants::OpenedPackage opened, const QString& path, Storage& storage, QObject* parent = nullptr);

    Document& document() { return document_; }
    const Document& document() const { return document_; }
    DocumentFile& disk() { return disk_; }
    const DocumentFile& disk() const { return disk_; }
    RecoveryKeeper& recovery() { return recovery_; }
    const RecoveryKeeper& recovery() const { return recovery_; }

    /// What reading replaced by a default or left out, one sentence each.
    const ReadNotes& notes() const { return notes_; }

    QString title() const;

    /// How the disk differs from what was read or saved here, as far as it is known.
    platform::PackageChange disk_change() const { return disk_change_; }

    /// Why it could not be saved without being asked for; absent since the last save that succeeded.
    const std::optional<SaveFailure>& trouble() const { return trouble_; }

    /// Whether it holds what a crash had left, and the file does not yet.
    bool is_held_back() const { return held_back_; }

    /// Whether it may be saved without being asked for: it has a file of its own that nobody else has touched, and its
    /// user has not just been given back what a crash had left.
    bool saves_itself() const;

    /// What a crash had left takes this value's place, as a step that can be undone; in a new document it is what there
    /// is. Nothing is saved until the user asks for it.
    void take_recovered(grants::RecoverySlot slot, grants::RecoveredDocument recovered);

    void save(Asked asked);
    void save_as(const QString& path, platform::Existing existing);

    /// Saves if it saves itself and has something to save.
    void save_by_itself();

    /// What others have saved takes this value's place, as a step that can be undone.
    Result<Done, grants::PackageError> reload();

    /// Compares with the disk now.
    void look_at_disk();

    /// Writes down what is not saved, at once.
    void put_in_safety();

Q_SIGNALS:
    void saved(const quillfern::platform::SaveOutcome& outcome, quillfern::app::OpenDocument::Asked asked);
    void save_failed(const quillfern::app::SaveFailure& failure, quillfern::app::OpenDocument::Asked asked);
    void condition_changed(); ///< of the disk, of the trouble, of what is held back

private:
    void connect_parts(std::chrono::milliseconds idle);
    void take(const SaveReport& report, Asked asked);
    void take_success(const SaveReport& report, Asked asked);
    void take_failure(const SaveFailure& failure, Asked asked);
    void set_disk_change(platform::PackageChange change);

    Document document_;
    DocumentFile disk_;
    RecoveryKeeper recovery_;
    DiskWatch watch_;
    ReadNotes notes_;
    QTimer idle_; ///< since the last edit
    platform::PackageChange disk_change_ = platform::PackageChange::same;
    std::optional<QuillfernDocument> vanished_; ///< what the file held that is gone; it may come back
    std::optional<SaveFailure> trouble_;
    bool held_back_ = false;
};

} // namespace quillfern::app
