#pragma once

#include "app/state/help_topic.h"

#include <QObject>

namespace quillfern::app {

/// What the running program shows apart from its documents: a plain value.
struct AppState {
    HelpTopic helpTopic = HelpTopic::start; ///< what the help window shows, or will show when it opens

    friend bool operator==(const AppState&, const AppState&) = default;
};

/// The state of the running program, which tells when it changes. There is one a program.
class AppModel : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const AppState& state() const { return state_; }
    void set_help_topic(HelpTopic topic);

Q_SIGNALS:
    void help_topic_changed(HelpTopic topic);

private:
    AppState state_;
};

} // namespace quillfern::app
