#pragma once

#include <QPixmap>
#include <QWidget>

namespace quillfern::app {

/// The organization's logo in a circle and its name beside it, on up to two lines.
class OrganizationMark : public QWidget {
    Q_OBJECT
public:
    explicit OrganizationMark(QWidget* parent = nullptr);

    void set_name(const QString& name);
    void set_logo(const QPixmap& logo);
    void set_logo_only(bool only);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString name_;
    QPixmap logo_;
    bool logo_only_ = false;
};

} // namespace quillfern::app
