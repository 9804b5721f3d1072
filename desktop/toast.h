#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QString>
#include <QWidget>

class QGraphicsOpacityEffect;
class QPropertyAnimation;

namespace quillfern::desktop {

/// A short message at the bottom of a page that goes away by itself: after four seconds, six for a long one, and never
/// while the pointer is on it. A new message replaces the old one. It never takes the focus; screen readers speak it.
class Toast : public QWidget {
    Q_OBJECT
public:
    /// Lies over `page` and follows its size.
    explicit Toast(QWidget* page);

    void show_message(const QString& text, const QString& icon_name = QStringLiteral("carried"));

    /// What it says is true no longer.
    void leave();

Q_SIGNALS:
    void gone();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();
    void fade_to(double opacity);

    QString text_;
    QString icon_name_;
    QBasicTimer timer_;
    QGraphicsOpacityEffect* opacity_;
    QPointer<QPropertyAnimation> fade_; ///< while it appears or goes
};

} // namespace quillfern::desktop
