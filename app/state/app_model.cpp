#include "app/state/app_model.h"

namespace quillfern::app {

void AppModel::set_help_topic(HelpTopic topic)
{
    if (state_.helpTopic == topic)
        return;
    state_.helpTopic = topic;
    Q_EMIT help_topic_changed(topic);
}

} // namespace quillfern::app
