#pragma once

#include "app/document/quillfern_document.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <optional>

namespace quillfern::app {

/// One open organization: its current value, the steps that led there, and which value is safe on the disk.
///
/// An edit is a new value with a name; it becomes one undo step. Where the document lives is DocumentFile's concern.
class Document : public QObject {
    Q_OBJECT
public:
    /// A new document, whose `initial` value needs no saving.
    explicit Document(QuillfernDocument initial, QObject* parent = nullptr);

    const QuillfernDocument& value() const { return value_; }
    const grants::OrgPackage& package() const { return value_.package; }
    const grants::GrantFile& file() const { return value_.package.file; }

    /// One undo step, called `label` in "Undo label". Nothing happens when the value stays equal.
    void edit(const QString& label, grants::OrgPackage next);
    void edit(const QString& label, grants::GrantFile next);

    /// Whether the value differs from the one that was saved last.
    bool is_modified() const { return modified_; }

    /// The value that was saved or read last; absent when no value is on the disk.
    const std::optional<QuillfernDocument>& saved() const { return saved_; }

    /// `value` is what the disk holds now; edits may have gone on since it was given to the saver.
    void set_saved(const QuillfernDocument& value);

    /// Nothing on the disk holds the value: of a copy that is still nowhere, of what a crash left.
    void set_unsaved();

    QUndoStack& undo_stack() { return undo_; }

Q_SIGNALS:
    void changed(const quillfern::app::QuillfernDocument& before, const quillfern::app::QuillfernDocument& after);
    void modified_changed(bool modified);

private:
    class ReplaceValue;

    void replace(const QuillfernDocument& next);
    void judge();

    QuillfernDocument value_;
    std::optional<QuillfernDocument> saved_; ///< absent: no value of it is on the disk
    bool modified_ = false;
    QUndoStack undo_;
};

} // namespace quillfern::app
