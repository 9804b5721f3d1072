#include "desktop/toast.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QAccessible>
#include <QEvent>
#include <QFontMetrics>
#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPropertyAnimation>
#include <QTimerEvent>

#include <algorithm>

namespace quillfern::desktop {
namespace {

constexpr int fade_ms = 120;
constexpr int short_stay_ms = 4000;
constexpr int long_stay_ms = 6000;
constexpr qsizetype long_text = 60; ///< characters; more take longer to read
constexpr double edge_gap = 26;
constexpr double icon_side = 17;

int stay_ms(const QString& text)
{
    return text.size() > long_text ? long_stay_ms : short_stay_ms;
}

} // namespace

Toast::Toast(QWidget* page) : QWidget(page), opacity_(new QGraphicsOpacityEffect(this))
{
    opacity_->setOpacity(0);
    setGraphicsEffect(opacity_);
    setFocusPolicy(Qt::NoFocus);
    hide();
    page->installEventFilter(this);
}

void Toast::show_message(const QString& text, const QString& icon_name)
{
    text_ = text;
    icon_name_ = icon_name;
    setAccessibleName(text);
    place();
    show();
    raise();
    update();
    fade_to(1);
    timer_.start(stay_ms(text), this);
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

void Toast::leave()
{
    timer_.stop();
    if (isVisible())
        fade_to(0);
}

void Toast::place()
{
    const QWidget* page = parentWidget();
    const int words = QFontMetrics(text_font(TextStyle::bodyMedium)).horizontalAdvance(text_);
    const int wanted = words + scaled(icon_side) + scaled(10) + 2 * scaled(16);
    resize(std::min(wanted, page->width() - 2 * scaled(28)), scaled(40));
    move((page->width() - width()) / 2, page->height() - height() - scaled(edge_gap));
}

void Toast::fade_to(double opacity)
{
    delete fade_; // a message that comes while another goes stays
    fade_ = new QPropertyAnimation(opacity_, "opacity", this);
    fade_->setDuration(fade_ms);
    fade_->setEndValue(opacity);
    if (opacity <= 0)
        connect(fade_, &QPropertyAnimation::finished, this, [this] {
            hide();
            Q_EMIT gone();
        });
    fade_->start(QAbstractAnimation::DeleteWhenStopped);
}

bool Toast::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

void Toast::enterEvent(QEnterEvent*)
{
    timer_.stop();
}

void Toast::leaveEvent(QEvent*)
{
    if (isVisible())
        timer_.start(stay_ms(text_), this);
}

void Toast::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != timer_.timerId())
        return QWidget::timerEvent(event);
    timer_.stop();
    fade_to(0);
}

void Toast::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paint_box(painter, rect(), scaled(8), color(Role::toastBg));
    const int side = scaled(icon_side);
    const QPoint corner(scaled(16), (height() - side) / 2);
    painter.drawPixmap(corner, icon_pixmap(icon_name_, Role::toastText, side, devicePixelRatioF()));
    const QRect words = rect().adjusted(scaled(16) + side + scaled(10), 0, -scaled(14), 0);
    draw_line(painter, words, text_, text_font(TextStyle::bodyMedium), Role::toastText);
}

} // namespace quillfern::desktop
