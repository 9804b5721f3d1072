#pragma once

#include "app/help/help_topics.h"
#include "app/window/app_window.h"

class QLineEdit;

namespace quillfern::desktop {
class TextLabel;
}

namespace quillfern::app {

class AppModel;
class HelpArticleView;
class HelpTopicList;

/// The help window: the topics at the left, the text of the one that AppModel names beside them.
class HelpWindow : public AppWindow {
    Q_OBJECT
public:
    HelpWindow(Application& application, AppModel& model);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* make_side();
    void show_topic(HelpTopic topic);
    void search(const QString& text);
    void leave();

    AppModel& model_;
    QLineEdit* search_;
    HelpTopicList* list_;
    desktop::TextLabel* nothing_found_;
    HelpArticleView* article_;
};

} // namespace quillfern::app
