#pragma once

#include <QStyledItemDelegate>

namespace quillfern::app {

class FunderList;

/// Paints a funder: name over kind, and at the right what it has awarded.
class FunderListDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit FunderListDelegate(FunderList& list);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    FunderList& list_;
};

} // namespace quillfern::app
