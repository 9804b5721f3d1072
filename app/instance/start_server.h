#pragma once

#include "app/instance/single_instance.h"

#include <QObject>

#include <functional>

namespace quillfern::app {

/// Takes the requests of later starts. Whatever arrives there, and however slowly, the program stays as it is: the
/// size, the time and the number of connections are bounded.
class StartServer : public QObject {
    Q_OBJECT
public:
    /// `instance` must outlive the server; when it is not the owner, nothing arrives.
    StartServer(
        const SingleInstance& instance, std::function<void(const StartRequest&)> perform, QObject* parent = nullptr);

private:
    void accept();

    int listener_;
    std::function<void(const StartRequest&)> perform_;
};

} // namespace quillfern::app
