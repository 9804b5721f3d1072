#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace quillfern::desktop {

/// The part of a page that scrolls as a whole, with the page's margins.
class PageScroll : public QScrollArea {
    Q_OBJECT
public:
    explicit PageScroll(QWidget* parent = nullptr);

    QVBoxLayout* column() const { return column_; }

    /// Scrolls as little as it takes to show `part` of a widget on the page.
    void bring_into_sight(const QWidget& widget, const QRect& part);

private:
    QVBoxLayout* column_;
};

} // namespace quillfern::desktop
