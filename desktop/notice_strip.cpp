#include "desktop/notice_strip.h"

#include "desktop/icons.h"
#include "desktop/painters.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QShowEvent>
#include <QToolButton>

#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double icon_side = 18;
constexpr double small_button_height = 30;
constexpr double least_words_width = 260;

int line_spacing()
{
    return QFontMetrics(text_font(TextStyle::body)).lineSpacing();
}

} // namespace

NoticeStrip::NoticeStrip(Tone tone, QString icon_name, const QString& sentence, QWidget* parent, Shape shape)
    : QWidget(parent), tone_(tone), icon_name_(std::move(icon_name)), shape_(shape), row_(new QHBoxLayout(this)),
      sentence_(new TextLabel({}, TextStyle::body, tone == Tone::warn ? Role::onWarnTint : Role::text, this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    const int side = scaled(shape == Shape::bar ? 28 : 16);
    row_->setContentsMargins(side + scaled(icon_side + 12), scaled(9), side, scaled(9));
    row_->setSpacing(scaled(8));
    sentence_->setObjectName(QStringLiteral("noticeSentence"));
    sentence_->setWordWrap(true);
    sentence_->setMinimumWidth(scaled(least_words_width));
    sentence_->setContentsMargins(0, scaled(3), scaled(8), scaled(3));
    row_->addWidget(sentence_, 1);
    set_sentence(sentence);
}

void NoticeStrip::set_sentence(const QString& sentence)
{
    sentence_->setText(sentence);
    setAccessibleName(sentence);
    if (isVisible())
        speak();
}

QPushButton* NoticeStrip::add_button(const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setFixedHeight(scaled(small_button_height));
    row_->addWidget(button, 0, Qt::AlignTop);
    return button;
}

void NoticeStrip::make_closable()
{
    auto* cross = new QToolButton(this);
    cross->setObjectName(QStringLiteral("noticeClose"));
    cross->setIcon(line_icon(QStringLiteral("close"), tone_ == Tone::warn ? Role::onWarnTint : Role::text2));
    cross->setAccessibleName(QStringLiteral("Close"));
    cross->setToolTip(cross->accessibleName());
    cross->setFixedSize(scaled(small_button_height), scaled(small_button_height));
    row_->addWidget(cross, 0, Qt::AlignTop);
    connect(cross, &QToolButton::clicked, this, [this] {
        hide();
        Q_EMIT closed();
    });
}

void NoticeStrip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        speak();
}

void NoticeStrip::speak()
{
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

void NoticeStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Role fill = tone_ == Tone::warn ? Role::warnTint : Role::neutral;
    const Role line = tone_ == Tone::warn ? Role::onWarnTint : Role::text2;
    if (shape_ == Shape::card) {
        paint_box(painter, rect(), scaled(10), color(fill));
    } else {
        painter.fillRect(rect(), color(fill));
        painter.fillRect(0, height() - 1, width(), 1, color(Role::hairline2));
    }
    const int side = scaled(icon_side);
    const int words = sentence_->heightForWidth(sentence_->width()); // centred in the label
    const int first_line = sentence_->geometry().center().y() - words / 2 + sentence_->contentsMargins().top()
        + (line_spacing() + 3) / 2; // small letters stand below the middle of their line
    const QPoint corner(scaled(shape_ == Shape::bar ? 28 : 16), first_line - side / 2);
    painter.drawPixmap(corner, icon_pixmap(icon_name_, line, side, devicePixelRatioF()));
}

} // namespace quillfern::desktop
