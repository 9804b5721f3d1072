#include "desktop/focus_ring.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusFrame>

namespace quillfern::desktop {

FocusRing::FocusRing(QObject* parent) : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* now)
{
    const bool by_keyboard = now && now->window()->testAttribute(Qt::WA_KeyboardFocusChange);
    const bool rings = by_keyboard && qobject_cast<QAbstractButton*>(now);
    if (!rings) {
        delete frame_; // it would keep the place of a button that is gone
        return;
    }
    if (!frame_)
        frame_ = new QFocusFrame(now);
    frame_->setWidget(now);
}

} // namespace quillfern::desktop
