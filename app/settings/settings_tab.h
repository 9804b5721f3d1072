#pragma once

#include <QAbstractButton>

namespace quillfern::app {

/// One pane in the list at the left of the settings; the panes of one list exclude each other.
class SettingsTab : public QAbstractButton {
    Q_OBJECT
public:
    SettingsTab(QString icon_name, const QString& title, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString icon_name_;
};

} // namespace quillfern::app
