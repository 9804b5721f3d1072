#include "app/pages/action_button.h"

#include "desktop/type.h"

#include <QMouseEvent>

namespace quillfern::app {
namespace {

constexpr double small_control_height = 30;
constexpr double narrower_padding = 6; ///< than a large button has, both sides together

} // namespace

ActionButton::ActionButton(const QString& title, QWidget* parent) : QPushButton(title, parent)
{
    setObjectName(QStringLiteral("rowAction"));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    setFixedSize(sizeHint().width() - desktop::scaled(narrower_padding), desktop::scaled(small_control_height));
}

void ActionButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}

} // namespace quillfern::app
