#pragma once

#include "app/instance/start_request.h"
#include "platform/descriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <string>

namespace quillfern::app {

/// One later start, from its first byte to the last answer. It deletes itself, at the latest when its time is over.
class StartConnection : public QObject {
    Q_OBJECT
public:
    StartConnection(
        platform::Descriptor socket, const std::function<void(const StartRequest&)>& perform, QObject* parent);

private:
    void read();
    void answer(const ReadStartRequest& read);

    platform::Descriptor socket_;
    std::function<void(const StartRequest&)> perform_;
    QSocketNotifier notifier_;
    std::string bytes_;
};

} // namespace quillfern::app
