#include "desktop/scrim.h"

#include "desktop/tokens.h"

#include <QDialog>
#include <QEvent>
#include <QPainter>

namespace quillfern::desktop {

void Scrim::put_under(QDialog* dialog)
{
    new ScrimHold(dialog);
}

Scrim::Scrim(QWidget* window) : QWidget(window)
{
    setObjectName(QStringLiteral("scrim"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(window->rect());
    window->installEventFilter(this);
    show();
    raise();
}

bool Scrim::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void Scrim::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), color(Role::scrim));
}

ScrimHold::ScrimHold(QDialog* dialog) : QObject(dialog)
{
    dialog->installEventFilter(this);
}

ScrimHold::~ScrimHold()
{
    release();
}

/// A dialog that goes away with its minimized window stays open, and so does its scrim: such a hiding is spontaneous.
bool ScrimHold::eventFilter(QObject* watched, QEvent* event)
{
    const auto* dialog = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && !event->spontaneous() && dialog->parentWidget())
        take(dialog->parentWidget()->window());
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        release();
    return QObject::eventFilter(watched, event);
}

void ScrimHold::take(QWidget* window)
{
    if (scrim_)
        return;
    scrim_ = window->findChild<Scrim*>({}, Qt::FindDirectChildrenOnly);
    if (!scrim_)
        scrim_ = new Scrim(window);
    ++scrim_->holders_;
}

void ScrimHold::release()
{
    if (scrim_ && --scrim_->holders_ == 0)
        delete scrim_;
    scrim_ = nullptr;
}

} // namespace quillfern::desktop
