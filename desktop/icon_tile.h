#pragma once

#include <QString>
#include <QWidget>

namespace quillfern::desktop {

/// An icon on a tinted square with round corners, beside the text that says what it stands for.
class IconTile : public QWidget {
    Q_OBJECT
public:
    enum class Tone { plain, accent, warn, danger };

    IconTile(QString icon_name, int side, Tone tone, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString icon_name_;
    Tone tone_;
};

} // namespace quillfern::desktop
