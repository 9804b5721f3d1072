#include "desktop/sheet.h"

#include "desktop/tokens.h"

#include <QPainter>

namespace quillfern::desktop {

Sheet::Sheet(QWidget* parent) : QDialog(parent)
{
    setWindowModality(parent ? Qt::WindowModal : Qt::NonModal);
    setAttribute(Qt::WA_DeleteOnClose);
}

void Sheet::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), color(Role::card));
}

} // namespace quillfern::desktop
