#pragma once

#include <QAbstractButton>

namespace quillfern::app {

/// One kind of file in the list at the left of the export sheet; the kinds of one list exclude each other.
class ExportKindButton : public QAbstractButton {
    Q_OBJECT
public:
    ExportKindButton(QString icon_name, const QString& title, QString line, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString icon_name_;
    QString line_;
};

} // namespace quillfern::app
