#pragma once

#include "app/document/background.h"
#include "grants/recovery_store.h"

#include <QObject>
#include <QString>
#include <QTimer>

namespace quillfern::app {

class Document;
class DocumentFile;
class Storage;

/// Keeps a snapshot of what is not saved, so that a crash costs at most ten seconds of work: it is written once the
/// edits pause for two seconds, and after ten at the latest. When nothing is unsaved any more it goes away.
class RecoveryKeeper : public QObject {
    Q_OBJECT
public:
    RecoveryKeeper(Document& document, DocumentFile& disk, const Storage& storage);
    ~RecoveryKeeper() override;

    /// Goes on with the snapshot that a crash has left and from which the document was opened.
    void adopt(grants::RecoverySlot slot);

    /// Writes what is not saved, and waits until it is written.
    void write_now();

    /// The user does not want it: nothing stays behind.
    void discard();

    /// Why snapshots cannot be written, as a sentence; empty while they can.
    const QString& problem() const { return problem_; }

Q_SIGNALS:
    void problem_changed();

private:
    using Written = Result<Done, int>;

    void take_change();
    void take_modified(bool modified);
    void write();
    void take(const Written& written);
    void set_problem(const QString& problem);

    Document& document_;
    DocumentFile& disk_;
    grants::RecoverySlot slot_;
    QTimer pause_;
    QTimer latest_;
    QString problem_;
    bool again_ = false; ///< what is being written is out of date already
    Background<Written> writing_{*this};
};

} // namespace quillfern::app
