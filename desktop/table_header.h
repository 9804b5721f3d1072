#pragma once

#include <QHeaderView>

namespace quillfern::desktop {

/// The head of a table: a click sorts by a column, a second one the other way round, a third one brings back the rows'
/// own order.
class TableHeader : public QHeaderView {
    Q_OBJECT
public:
    explicit TableHeader(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    bool viewportEvent(QEvent* event) override;

private:
    int last_visible() const;

    int hovered_ = -1;
};

} // namespace quillfern::desktop
