#pragma once

#include "app/help/help_topics.h"

#include <QString>
#include <QStringList>

namespace quillfern::app {

/// Whether every word of `text` occurs in the topic's title or article, in any case. An empty text fits every topic.
bool help_matches(HelpTopic topic, const QString& text);

} // namespace quillfern::app
