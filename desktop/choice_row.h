#pragma once

#include <QAbstractButton>
#include <QString>

namespace quillfern::desktop {

/// A large button that says what it does in a title and a line, which may wrap: icon tile, words, and an arrow to the
/// right.
class ChoiceRow : public QAbstractButton {
    Q_OBJECT
public:
    ChoiceRow(QString icon_name, const QString& title, QString line, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int line_height_for(int width) const;

    QString icon_name_;
    QString line_;
};

} // namespace quillfern::desktop
