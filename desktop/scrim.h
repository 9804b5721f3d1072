#pragma once

#include <QPointer>
#include <QWidget>

class QDialog;

namespace quillfern::desktop {

/// The shade over a window that waits for a dialog above it. It follows the window's size, takes no focus, and lies
/// there once however many dialogs the window waits for.
class Scrim : public QWidget {
    Q_OBJECT
public:
    /// Shades the window of the dialog's parent for as long as the dialog is open.
    static void put_under(QDialog* dialog);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class ScrimHold;

    explicit Scrim(QWidget* window);

    int holders_ = 0; ///< the dialogs that are open
};

/// One dialog's claim on the scrim of a window.
class ScrimHold : public QObject {
    Q_OBJECT
public:
    explicit ScrimHold(QDialog* dialog);
    ~ScrimHold() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(QWidget* window);
    void release();

    QPointer<Scrim> scrim_;
};

} // namespace quillfern::desktop
