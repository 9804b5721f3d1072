#pragma once

#include <QString>
#include <QWidget>

#include <vector>

class QPainter;

namespace quillfern::desktop {

/// How a part of a bar is filled. Overdue parts are hatched, so that they are told apart without their colour.
enum class SharePattern { solid, shortfall, overdue, rest };

/// One part of a whole: `amount` in any unit, all parts of a bar in the same one.
struct Share {
    double amount = 0;
    SharePattern pattern = SharePattern::rest;

    friend bool operator==(const Share&, const Share&) = default;
};

/// A square that stands for a pattern in a legend.
void paint_share_swatch(QPainter& painter, const QRect& rect, SharePattern pattern);

/// A bar 10 high whose parts are as long as their share of the sum, with gaps between them. What it says in words is
/// its accessible description.
class ShareBar : public QWidget {
    Q_OBJECT
public:
    explicit ShareBar(QWidget* parent = nullptr);

    void set_shares(std::vector<Share> shares, const QString& description);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Share> shares_;
};

} // namespace quillfern::desktop
