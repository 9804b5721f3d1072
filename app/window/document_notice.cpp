#include "app/window/document_notice.h"

#include "desktop/notice_strip.h"

#include <QBoxLayout>
#include <QPushButton>

#include <utility>

namespace quillfern::app {

using desktop::NoticeStrip;

DocumentNotice::DocumentNotice(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("documentNotice"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    hide();
}

void DocumentNotice::show_notice(const std::optional<Notice>& notice)
{
    if (notice == std::exchange(shown_, notice))
        return;
    const bool had_keyboard = strip_ && strip_->isAncestorOf(window()->focusWidget());
    if (strip_)
        strip_->deleteLater(); // one of its buttons may be what brought this about
    strip_ = nullptr;
    setVisible(notice.has_value());
    if (had_keyboard)
        Q_EMIT keyboard_left();
    if (!notice)
        return;
    strip_ = new NoticeStrip(NoticeStrip::Tone::warn, notice->icon, notice->text, this);
    for (const Notice::Button& button : notice->buttons)
        connect(strip_->add_button(button.text), &QPushButton::clicked, this,
            [this, action = button.action] { Q_EMIT action_chosen(action); });
    layout()->addWidget(strip_);
}

} // namespace quillfern::app
