#pragma once

#include "app/window/notices.h"

#include <QWidget>

namespace quillfern::desktop {
class NoticeStrip;
}

namespace quillfern::app {

/// The strip over the page with the most urgent notice about a document's file; without one it takes no room.
class DocumentNotice : public QWidget {
    Q_OBJECT
public:
    explicit DocumentNotice(QWidget* parent);

    void show_notice(const std::optional<Notice>& notice);

Q_SIGNALS:
    void action_chosen(quillfern::app::Notice::Action action);
    void keyboard_left(); ///< the button that had it is gone

private:
    std::optional<Notice> shown_;
    desktop::NoticeStrip* strip_ = nullptr;
};

} // namespace quillfern::app
