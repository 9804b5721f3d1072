#pragma once

#include "app/settings/recent_documents.h"

#include <QAbstractButton>

namespace quillfern::app {

/// One of the recent documents in the start window: its name over its folder. A missing one says so and cannot be
/// chosen.
class RecentRow : public QAbstractButton {
    Q_OBJECT
public:
    explicit RecentRow(const RecentDocument& document, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString line_;
};

} // namespace quillfern::app
