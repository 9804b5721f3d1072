#pragma once

#include "desktop/tokens.h"

#include <QString>
#include <QWidget>

#include <vector>

class QPainter;

namespace quillfern::desktop {

/// One figure with its heading above and a note below.
struct StatTile {
    QString label;
    QString figure;
    QString note;
    Role role = Role::text; ///< of the figure

    friend bool operator==(const StatTile&, const StatTile&) = default;
};

/// A few figures beside each other with hairlines between, to be laid on a card. In little room they stand in two rows.
class StatTiles : public QWidget {
    Q_OBJECT
public:
    explicit StatTiles(QWidget* parent = nullptr);

    void set_tiles(std::vector<StatTile> tiles);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int tiles_in_row(int width) const;
    void paint_tile(QPainter& painter, const QRect& place, const StatTile& tile) const;

    std::vector<StatTile> tiles_;
};

} // namespace quillfern::desktop
