#include "desktop/page_scroll.h"

#include "desktop/type.h"

#include <QScrollBar>
#include <QVBoxLayout>

namespace quillfern::desktop {

PageScroll::PageScroll(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that nothing changes its width when it appears
    viewport()->setAutoFillBackground(false);
    auto* content = new QWidget(this);
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins(scaled(28), 0, scaled(28) - verticalScrollBar()->sizeHint().width(), scaled(22));
    column_->setSpacing(scaled(16));
    setWidget(content);
    content->setAutoFillBackground(false);
}

void PageScroll::bring_into_sight(const QWidget& widget, const QRect& part)
{
    const QRect place(widget.mapTo(this->widget(), part.topLeft()), part.size());
    ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + scaled(40));
}

} // namespace quillfern::desktop
