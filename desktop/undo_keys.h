#pragma once

#include <QObject>

namespace quillfern::desktop {

/// A text field that has the keyboard takes Undo and Redo for itself even when it has nothing to take back. This leaves
/// the keys to the window then, so that they reach the document from wherever the user is.
class UndoKeys : public QObject {
    Q_OBJECT
public:
    /// Watches the whole application, from now until it is destroyed.
    explicit UndoKeys(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillfern::desktop
