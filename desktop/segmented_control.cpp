#include "desktop/segmented_control.h"

#include "desktop/painters.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

namespace quillfern::desktop {
namespace {

/// Each segment paints its part of the frame around them all.
class Segment : public QAbstractButton {
public:
    Segment(const QString& text, int height, QWidget* control) : QAbstractButton(control), height_(height)
    {
        setText(text);
        setCheckable(true);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        const int words = QFontMetrics(text_font(TextStyle::bodyStrong)).horizontalAdvance(text());
        return {words + 2 * scaled(13), height_};
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRect whole(-pos(), parentWidget()->size());
        const Role line = isEnabled() ? Role::border : Role::hairline2;
        paint_box(painter, whole, scaled(7), color(fill()), color(line));
        if (pos().x() > 0 && !isChecked())
            painter.fillRect(0, 0, 1, height(), color(line));
        const Role ink = !isEnabled() ? Role::text3 : isChecked() ? Role::onAccent : Role::text;
        draw_line(painter, rect(), text(), text_font(isChecked() ? TextStyle::bodyStrong : TextStyle::bodyMedium), ink,
            Qt::AlignHCenter);
    }

    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }

private:
    Role fill() const
    {
        if (!isEnabled())
            return isChecked() ? Role::badge : Role::cardAlt;
        if (isChecked())
            return Role::accentFill;
        return isDown() ? Role::badge : underMouse() ? Role::neutral : Role::card;
    }

    int height_;
};

} // namespace

SegmentedControl::SegmentedControl(const QStringList& texts, QWidget* parent, Form form) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const QString& text : texts) {
        auto* segment = new Segment(text, scaled(form == Form::control ? 34 : 28), this);
        segment->installEventFilter(this);
        row->addWidget(segment);
        const auto index = static_cast<int>(segments_.size());
        connect(segment, &QAbstractButton::clicked, this, [this, index] { choose(index); });
        segments_.append(segment);
    }
    set_current(0);
}

int SegmentedControl::current() const
{
    for (int i = 0; i < segments_.size(); ++i)
        if (segments_[i]->isChecked())
            return i;
    return 0;
}

void SegmentedControl::set_current(int index)
{
    for (int i = 0; i < segments_.size(); ++i) {
        segments_[i]->setChecked(i == index);
        segments_[i]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void SegmentedControl::choose(int index)
{
    set_current(index);
    Q_EMIT chosen(index);
}

bool SegmentedControl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const int step = key == Qt::Key_Right || key == Qt::Key_Down ? 1
        : key == Qt::Key_Left || key == Qt::Key_Up               ? -1
                                                                 : 0;
    const int next = current() + step;
    if (step == 0)
        return QWidget::eventFilter(watched, event);
    if (next >= 0 && next < segments_.size()) {
        choose(next);
        segments_[next]->setFocus(Qt::TabFocusReason);
    }
    return true;
}

} // namespace quillfern::desktop
