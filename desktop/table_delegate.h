#pragma once

#include <QStyledItemDelegate>

namespace quillfern::desktop {

class TableView;

/// Paints the cells of a TableView: fill, hairline, content, and the row's focus.
class TableDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit TableDelegate(TableView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

private:
    QRect content(const QRect& cell, int column) const;
    void paint_row_part(QPainter& painter, const QStyleOptionViewItem& option, int row) const;

    TableView& view_;
};

} // namespace quillfern::desktop
