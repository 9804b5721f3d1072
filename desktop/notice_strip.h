#pragma once

#include "desktop/text_label.h"

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace quillfern::desktop {

/// A sentence that holds for as long as it is shown: across the top of a page ("This file is open in another window of
/// Quillfern.") or, with round corners, among other controls. Small buttons at its right say what can be done about it.
/// It takes no focus; screen readers speak it when it appears. Only a strip that was told so can be closed.
class NoticeStrip : public QWidget {
    Q_OBJECT
public:
    enum class Tone {
        warn, ///< amber: something is wrong
        info, ///< grey: something to know; blue-grey is the calendar's
    };
    enum class Shape { bar, card };

    NoticeStrip(
        Tone tone, QString icon_name, const QString& sentence, QWidget* parent = nullptr, Shape shape = Shape::bar);

    void set_sentence(const QString& sentence);

    /// Adds a button at the right, of three at most; the caller connects it.
    QPushButton* add_button(const QString& text);

    /// Adds a cross that hides the strip.
    void make_closable();

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void speak();

    Tone tone_;
    QString icon_name_;
    Shape shape_;
    QHBoxLayout* row_;
    TextLabel* sentence_;
};

} // namespace quillfern::desktop
