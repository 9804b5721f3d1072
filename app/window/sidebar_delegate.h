#pragma once

#include <QStyledItemDelegate>

namespace quillfern::app {

/// Paints the rows of the sidebar, or, in a strip, their icons alone with a dot where there is a count.
class SidebarDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void set_strip(bool strip) { strip_ = strip; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    bool strip_ = false;
};

} // namespace quillfern::app
