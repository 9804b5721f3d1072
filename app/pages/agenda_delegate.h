#pragma once

#include <QStyledItemDelegate>

namespace quillfern::app {

struct AgendaCell;
struct AgendaHeading;

/// Paints the agenda: headings on the page, and the rows of a bucket together as one card.
class AgendaDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* action, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
};

/// The height of a bucket's heading; what stands beside the agenda starts that much lower.
int agenda_heading_height();

} // namespace quillfern::app
