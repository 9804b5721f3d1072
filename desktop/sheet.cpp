#include "desktop/sheet.h"

#include "desktop/scrim.h"
#include "desktop/tokens.h"
#include "desktop/type.h"

#include <QBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace quillfern::desktop {

Sheet::Sheet(QWidget* parent) : QDialog(parent)
{
    setWindowModality(parent ? Qt::WindowModal : Qt::NonModal);
    setAttribute(Qt::WA_DeleteOnClose);
    Scrim::put_under(this);
}

void Sheet::setVisible(bool visible)
{
    if (visible && !isVisible() && parentWidget())
        place();
    QDialog::setVisible(visible);
}

/// In the middle of the window's width, with a third of the room that is left above it and two thirds below: the eye
/// looks there first. It stays on the screen where that is possible.
void Sheet::place()
{
    ensurePolished();
    adjustSize();
    const QWidget* window = parentWidget()->window();
    const QPoint corner = window->mapToGlobal(QPoint());
    const QRect screen = window->screen()->availableGeometry();
    const int x = corner.x() + (window->width() - width()) / 2;
    const int y = corner.y() + std::max(0, (window->height() - height()) / 3);
    move(std::max(screen.left(), std::min(x, screen.right() + 1 - width())),
        std::max(screen.top(), std::min(y, screen.bottom() + 1 - height())));
}

void Sheet::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), color(Role::card));
}

QHBoxLayout* Sheet::make_foot(QPushButton* button)
{
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->setSpacing(scaled(10));
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(button);
    return row;
}

} // namespace quillfern::desktop
