#pragma once

#include "app/help/help_topics.h"

#include <QListWidget>

namespace quillfern::app {

/// The help window's list of topics. Searching hides those that do not fit; the topic that is shown stays chosen.
class HelpTopicList : public QListWidget {
    Q_OBJECT
public:
    explicit HelpTopicList(QWidget* parent = nullptr);

    void select(HelpTopic topic);

    /// Lists the topics that match; returns how many there are.
    int search(const QString& text);

    /// Whether the chosen topic is among those listed.
    bool current_is_found() const;

    /// Chooses the first topic that is listed, if there is one.
    void choose_first();

Q_SIGNALS:
    void chosen(HelpTopic topic);
};

} // namespace quillfern::app
